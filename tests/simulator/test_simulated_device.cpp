#include "acquisition/PM25Frame.h"
#include "shell/Global_cfg.h"
#include "simulator/DeviceRoot.h"
#include "simulator/FirmwareAnswer.h"
#include "simulator/ScannerScript.h"
#include "simulator/Scenario.h"
#include "testkit/Environment.h"

#include <QProcess>

using namespace simulator;

// The parts that need no running device: curves, frames, texts, scans, scenarios, HTTP answers.
class TestSimulatedDevice : public QObject
{
    Q_OBJECT

private slots:
    void curveTakesADay()
    {
        const DayCurve curve{.mean = 20, .swing = 5, .peakHour = 15, .ripple = 0};
        QCOMPARE(curve.at(15 * 3600.0, 1), 25.0);
        QCOMPARE(curve.at(3 * 3600.0, 1), 15.0);
        QCOMPARE(curve.at(39 * 3600.0, 1), 25.0);
        const DayCurve rippled{.mean = 20, .swing = 0, .peakHour = 0, .ripple = 1};
        QCOMPARE(rippled.at(100, 7), rippled.at(100, 7));
        QVERIFY(rippled.at(100, 7) != rippled.at(100, 8));
    }

    void programDecodesGoodFramesOnly_data()
    {
        QTest::addColumn<FrameFault>("fault");
        QTest::addColumn<QList<int>>("sizes");
        QTest::addColumn<QByteArray>("header");
        QTest::addColumn<int>("value"); // of the bursts put together
        const QByteArray header = "Z\xA5";
        QTest::newRow("none") << FrameFault::None << QList{60} << header << 567;
        QTest::newRow("checksum") << FrameFault::BadChecksum << QList{60} << header
                                  << PM25_ERROR_DATA;
        QTest::newRow("header") << FrameFault::BadHeader << QList{60} << QByteArray("ZZ")
                                << PM25_ERROR_DATA;
        QTest::newRow("split") << FrameFault::Split << QList{30, 30} << header << 567;
        QTest::newRow("merged") << FrameFault::Merged << QList{120} << header << 567;
        QTest::newRow("short") << FrameFault::Short << QList{59} << header << PM25_ERROR_DATA;
        QTest::newRow("long") << FrameFault::Long << QList{61} << header << 567;
    }

    void programDecodesGoodFramesOnly()
    {
        QFETCH(FrameFault, fault);
        QFETCH(QList<int>, sizes);
        QFETCH(QByteArray, header);
        QRandomGenerator random(1);
        QByteArray all;
        for (const QByteArray &burst : sensorBursts(fault, 567, random)) {
            QCOMPARE(burst.size(), sizes.takeFirst());
            all += burst;
        }
        QVERIFY(sizes.isEmpty());
        QCOMPARE(all.first(2), header);
        QTEST(PM2_5_dataHandle(&all), "value");
    }

    void climateKeepsItsColumns_data()
    {
        QTest::addColumn<double>("celsius");
        QTest::addColumn<double>("percent");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("plain") << 23.456 << 45.678 << QByteArray("temp = 23456, humidity = 45678");
        QTest::newRow("short") << 0.95 << 5.0 << QByteArray("temp = 00950, humidity = 05000");
        QTest::newRow("zero") << -0.0001 << 0.0 << QByteArray("temp = 00000, humidity = 00000");
        QTest::newRow("negative") << -5.25 << 9.9996
                                  << QByteArray("temp = -5250, humidity = 10000");
        QTest::newRow("little below zero")
            << -0.25 << 45.0 << QByteArray("temp = -0250, humidity = 45000");
        QTest::newRow("limits") << -12.3 << 100.0 << QByteArray("temp = -9999, humidity = 99999");
    }

    void climateKeepsItsColumns()
    {
        QFETCH(double, celsius);
        QFETCH(double, percent);
        QTEST(climateText(celsius, percent), "text");
    }

    void brokenTextsAreBroken()
    {
        QRandomGenerator random(1);
        const QByteArray good = climateText(23.456, 45.678);
        QCOMPARE(brokenText(TextFault::None, good, random), good);
        QCOMPARE(brokenText(TextFault::Empty, good, random), QByteArray());
        QCOMPARE(brokenText(TextFault::Short, good, random), QByteArray("temp = 234"));
        QCOMPARE(brokenText(TextFault::Letters, good, random),
                 QByteArray("temp = xxxxx, humidity = xxxxx"));
        QVERIFY(!brokenText(TextFault::Binary, good, random).startsWith("temp"));
        QVERIFY(brokenText(TextFault::Huge, good, random).size() > 1000000);
        QCOMPARE(lightText(-3), QByteArray("0"));
    }

    // The device's program cuts the names out of the scan with grep and two fixed columns.
    void scanShowsTheNetworks_data()
    {
        QTest::addColumn<QStringList>("networks");
        for (const Scenario &scenario : scenarios())
            QTest::newRow(qPrintable(scenario.name)) << scenario.networks;
    }

    void scanShowsTheNetworks()
    {
        QFETCH(QStringList, networks);
        QVERIFY(replaceFile("iwlist", scannerScript(networks), true));
        QProcess shell;
        shell.start("/bin/sh", {"-c", "./iwlist wlan1 scanning|grep ESSID"});
        QVERIFY(shell.waitForFinished());
        QStringList names = QString::fromUtf8(shell.readAllStandardOutput()).split('\n');
        names.removeLast();
        for (QString &name : names)
            name = name.mid(27).chopped(1);
        QCOMPARE(names, networks);
        QCOMPARE(shell.readAllStandardError().isEmpty(), !networks.isEmpty());
    }

    void scenariosStayWithinTheColumns()
    {
        for (const Scenario &scenario : scenarios()) {
            for (int minute = 0; minute < 24 * 60; ++minute) {
                const double celsius = scenario.temperature.at(minute * 60, 1);
                QVERIFY2(celsius > -9.999 && celsius < 50, qPrintable(scenario.name));
                QCOMPARE(celsius < 0, scenario.name == "cold");
                const double percent = scenario.humidity.at(minute * 60, 1);
                QVERIFY2(percent > 0 && percent < 100, qPrintable(scenario.name));
                QVERIFY2(scenario.particles.at(minute * 60, 1) > 0, qPrintable(scenario.name));
            }
        }
    }

    void firmwareFaultsCanBeNamed()
    {
        QCOMPARE(findScenario("bad-firmware")->firmware.size(), firmwareFaultNames().size());
        QCOMPARE(findScenario("bad-firmware:stalled")->firmware, QList{FirmwareFault::Stalled});
        for (const char *name : {"", "Steady", "bad-firmware:", "bad-firmware:x", "steady:refused"})
            QVERIFY2(!findScenario(name), name);
    }

    void serverAnswersRequests_data()
    {
        QTest::addColumn<QByteArray>("request");
        QTest::addColumn<QByteArray>("status");
        QTest::addColumn<qint64>("bodySize");
        QTest::newRow("package") << QByteArray("GET /zell/ZellQt-1.1.pkg?x=1 HTTP/1.1")
                                 << QByteArray("200") << firmwareSize;
        QTest::newRow("head") << QByteArray("HEAD /zell/ZellQt-1.1.pkg HTTP/1.1")
                              << QByteArray("200") << qint64(0);
        QTest::newRow("other path")
            << QByteArray("GET / HTTP/1.1") << QByteArray("404") << qint64(0);
        QTest::newRow("other method")
            << QByteArray("POST /zell/ZellQt-1.1.pkg HTTP/1.1") << QByteArray("405") << qint64(0);
        QTest::newRow("no HTTP") << QByteArray("\x16\x03\x01") << QByteArray("400") << qint64(0);
        QTest::newRow("blank") << QByteArray() << QByteArray("400") << qint64(0);
    }

    void serverAnswersRequests()
    {
        QFETCH(QByteArray, request);
        const FirmwareAnswer answer =
            answerTo(request + "\r\n\r\n", firmwareAnswer(FirmwareFault::None));
        QTEST(answer.head.mid(9, 3), "status");
        QTEST(answer.bodySize, "bodySize");
        QVERIFY(answer.head.endsWith("\r\n\r\n"));
        QCOMPARE(firmwareBytes(0, 300).sliced(100), firmwareBytes(100, 200));
    }
};

ZELL_TEST_MAIN(TestSimulatedDevice)
#include "test_simulated_device.moc"
