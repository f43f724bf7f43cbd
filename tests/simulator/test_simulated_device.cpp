#include "acquisition/PM25Frame.h"
#include "shell/Global_cfg.h"
#include "simulator/ScannerScript.h"
#include "simulator/Scenario.h"
#include "testkit/Environment.h"
#include "testkit/TableRows.h"

#include <QProcess>

using namespace simulator;

// The parts that need no running device: curves, frames, texts, scans, scenarios, HTTP answers.
class TestSimulatedDevice : public QObject
{
    Q_OBJECT

    struct Request
    {
        const char *name, *status;
        qint64 bodySize;
    };

private slots:
    void curveTakesADay()
    {
        const DayCurve curve{.mean = 20, .swing = 5, .peakHour = 15, .ripple = 0};
        QCOMPARE(curve.at(15 * 3600.0, 1), 25.0);
        QCOMPARE(curve.at(3 * 3600.0, 1), 15.0);
        QCOMPARE(curve.at(39 * 3600.0, 1), 25.0);
        const DayCurve rippled{.mean = 20, .swing = 0, .peakHour = 0, .ripple = 1};
        QVERIFY(rippled.at(100, 7) != rippled.at(100, 8));
    }

    void programDecodesGoodFramesOnly()
    {
        using enum FrameFault;
        const auto decoded = [](FrameFault fault) {
            QRandomGenerator random(1);
            QByteArray bytes = sensorBursts(fault, 567, random).join();
            return PM2_5_dataHandle(&bytes);
        };
        for (const FrameFault harmless : {None, Split, Merged, Long})
            QCOMPARE(decoded(harmless), 567);
        for (const FrameFault fault : {BadChecksum, BadHeader, Short})
            QCOMPARE(decoded(fault), PM25_ERROR_DATA);
        QRandomGenerator random(1);
        QVERIFY(sensorBursts(BadHeader, 567, random).first().startsWith("ZZ"));
    }

    void textsKeepTheirColumnsUnlessBroken()
    {
        QCOMPARE(climateText(23.456, 45.678), "temp = 23456, humidity = 45678");
        QCOMPARE(climateText(0.95, 5), "temp = 00950, humidity = 05000");
        QCOMPARE(climateText(-0.0001, 0), "temp = 00000, humidity = 00000");
        QCOMPARE(climateText(-5.25, 9.9996), "temp = -5250, humidity = 10000");
        QCOMPARE(climateText(-0.25, 45), "temp = -0250, humidity = 45000");
        QCOMPARE(climateText(-12.3, 100), "temp = -9999, humidity = 99999");
        QRandomGenerator random(1);
        const QByteArray good = climateText(23.456, 45.678);
        QCOMPARE(brokenText(TextFault::None, good, random), good);
        QCOMPARE(brokenText(TextFault::Empty, good, random), "");
        QCOMPARE(brokenText(TextFault::Short, good, random), "temp = 234");
        QCOMPARE(brokenText(TextFault::Letters, good, random), "temp = xxxxx, humidity = xxxxx");
        QVERIFY(!brokenText(TextFault::Binary, good, random).startsWith("temp"));
        QVERIFY(brokenText(TextFault::Huge, good, random).size() > 1000000);
        QCOMPARE(lightText(-3), "0");
    }

    // The device's program cuts the names out of the scan with grep and two fixed columns.
    void scanShowsTheNetworks()
    {
        for (const Scenario &scenario : scenarios()) {
            QVERIFY(replaceFile("iwlist", scannerScript(scenario.networks), true));
            QProcess shell;
            shell.start("/bin/sh", {"-c", "./iwlist wlan1 scanning|grep ESSID"});
            QVERIFY(shell.waitForFinished());
            QStringList names = QString(shell.readAllStandardOutput()).split('\n');
            names.removeLast();
            for (QString &name : names)
                name = name.mid(27).chopped(1);
            QCOMPARE(names, scenario.networks);
            QCOMPARE(shell.readAllStandardError().isEmpty(), !names.isEmpty());
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
        addRows<Request>({{"GET /zell/ZellQt-1.1.pkg?x=1 HTTP/1.1", "200", firmwareSize},
                          {"HEAD /zell/ZellQt-1.1.pkg HTTP/1.1", "200", 0},
                          {"GET / HTTP/1.1", "404", 0},
                          {"POST /zell/ZellQt-1.1.pkg HTTP/1.1", "405", 0},
                          {"no HTTP", "400", 0},
                          {"", "400", 0}});
    }

    void serverAnswersRequests()
    {
        QFETCH(Request, row);
        const FirmwareAnswer answer =
            answerTo(QByteArray(row.name) + "\r\n\r\n", firmwareAnswer(FirmwareFault::None));
        QCOMPARE(answer.head.mid(9, 3), row.status);
        QCOMPARE(answer.bodySize, row.bodySize);
        QVERIFY(answer.head.endsWith("\r\n\r\n"));
        QCOMPARE(firmwareBytes(0, 300).sliced(100), firmwareBytes(100, 200));
    }
};

ZELL_TEST_MAIN(TestSimulatedDevice)
#include "test_simulated_device.moc"
