#include "acquisition/PM25Frame.h"
#include "shell/Global_cfg.h"
#include "simulator/ScannerScript.h"
#include "simulator/Scenario.h"
#include "testkit/Environment.h"

#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>

using namespace simulator;
using namespace std::chrono_literals;

// The parts that need no running device: curves, frames, texts, scans, store, HTTP answers.
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

    void textsKeepTheirColumnsUntilTheyBreak()
    {
        QCOMPARE(climateText(0.95, 5), "temp = 00950, humidity = 05000");
        QCOMPARE(climateText(-0.0001, 0), "temp = 00000, humidity = 00000");
        QCOMPARE(climateText(-5.25, 9.9996), "temp = -5250, humidity = 10000");
        QCOMPARE(climateText(-12.3, 100), "temp = -9999, humidity = 99999");
        QCOMPARE(lightText(-26.544), "0");
        const QByteArray good = climateText(23.456, 45.678);
        QCOMPARE(good, "temp = 23456, humidity = 45678");
        QRandomGenerator random(1);
        QCOMPARE(brokenText(TextFault::None, good, random), good);
        QCOMPARE(brokenText(TextFault::Empty, good, random), "");
        QCOMPARE(brokenText(TextFault::Short, good, random), "temp = 234");
        QCOMPARE(brokenText(TextFault::Letters, good, random), "temp = xxxxx, humidity = xxxxx");
        QVERIFY(!brokenText(TextFault::Binary, good, random).startsWith("temp"));
        QVERIFY(brokenText(TextFault::Huge, good, random).size() > 1000000);
    }

    // The device's program cuts the names out of the scan with grep and two fixed columns.
    void scanShowsTheNetworks()
    {
        for (const char *name : {"steady", "garbage", "no-wifi", "hung-scan"}) {
            const Scenario scenario = *findScenario(name);
            const QByteArray script = scannerScript(scenario.networks, scenario.scanHangs);
            QVERIFY(replaceFile("iwlist", script, true));
            QProcess shell;
            shell.start("/bin/sh", {"-c", "./iwlist wlan1 scanning|grep --line-buffered ESSID"});
            QStringList names;
            while (names.size() < scenario.networks.size() && shell.waitForReadyRead()) {
                while (shell.canReadLine())
                    names.append(QString(shell.readLine()).mid(27).chopped(2));
            }
            QCOMPARE(names, scenario.networks);
            const bool hangs = qstrcmp(name, "hung-scan") == 0;
            QCOMPARE(shell.waitForFinished(hangs ? 100 : 30000), !hangs);
            QCOMPARE(shell.readAllStandardError().isEmpty(), !names.isEmpty());
            shell.kill();
            shell.waitForFinished();
        }
    }

    void storeTroubleComesAndGoes()
    {
        using enum StoreFault;
        QSqlDatabase store = QSqlDatabase::addDatabase("QSQLITE");
        store.setDatabaseName("store.db");
        store.setConnectOptions("QSQLITE_BUSY_TIMEOUT=0");
        QVERIFY(store.open());
        const auto isSound = [&store] {
            const bool isLocked = !QSqlQuery(store).exec("begin immediate");
            QSqlQuery(store).exec("rollback");
            return !isLocked && !QFile::exists("flag");
        };
        for (const StoreFault fault : {Full, ReadOnly, Locked}) {
            StoreTrouble trouble({fault, "store.db", "flag", 100ms, 1s});
            trouble.start();
            QVERIFY(isSound());
            QTRY_VERIFY(!isSound());
            QCOMPARE(QFile::exists("flag"), fault != Locked);
            QTRY_VERIFY(isSound());
        }
    }

    void firmwareFaultsCanBeNamed()
    {
        QCOMPARE(findScenario("bad-firmware")->firmware.size(), firmwareFaultNames().size());
        QCOMPARE(findScenario("bad-firmware:stalled")->firmware, QList{FirmwareFault::Stalled});
        for (const char *name : {"", "Steady", "bad-firmware:", "bad-firmware:x", "steady:refused"})
            QVERIFY2(!findScenario(name), name);
    }

    void serverAnswersRequests()
    {
        const auto answer = [](const QByteArray &line) {
            return answerTo(line + "\r\n\r\n", firmwareAnswer(FirmwareFault::None));
        };
        const QByteArray package = firmwarePath;
        QCOMPARE(answer("GET " + package + "?x=1 HTTP/1.1").bodySize, qint64(firmwareSize));
        QCOMPARE(answer("HEAD " + package + " HTTP/1.1").bodySize, 0);
        QVERIFY(answer("HEAD " + package + " HTTP/1.1").head.startsWith("HTTP/1.1 200 "));
        QVERIFY(answer("GET / HTTP/1.1").head.startsWith("HTTP/1.1 404 "));
        QVERIFY(answer("POST " + package + " HTTP/1.1").head.startsWith("HTTP/1.1 405 "));
        for (const char *line : {"no HTTP", ""})
            QVERIFY(answer(line).head.startsWith("HTTP/1.1 400 "));
        QCOMPARE(firmwareBytes(0, 300).sliced(100), firmwareBytes(100, 200));
    }
};

ZELL_TEST_MAIN(TestSimulatedDevice)
#include "test_simulated_device.moc"
