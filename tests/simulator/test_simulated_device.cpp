#include "acquisition/PM25Frame.h"
#include "shell/Global_cfg.h"
#include "simulator/ScannerScript.h"
#include "simulator/Scenario.h"
#include "testkit/Environment.h"
#include "testkit/TableRows.h"

#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>

using namespace simulator;
using namespace std::chrono_literals;

// The parts that need no running device: curves, frames, texts, scans, store, HTTP answers.
class TestSimulatedDevice : public QObject
{
    Q_OBJECT

    struct Request
    {
        const char *name;
        QByteArray line, status;
        qint64 bodySize = 0;
    };
    struct Climate
    {
        const char *name;
        double celsius, percent;
        QByteArray text;
    };
    struct Scan
    {
        const char *name, *scenario;
        bool ends = true;
    };
    struct Trouble
    {
        const char *name;
        StoreFault fault;
        bool isFlagged;
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

    void textsKeepTheirColumns_data()
    {
        addRows<Climate>({{"usual", 23.456, 45.678, "temp = 23456, humidity = 45678"},
                          {"short", 0.95, 5, "temp = 00950, humidity = 05000"},
                          {"just below zero", -0.0001, 0, "temp = 00000, humidity = 00000"},
                          {"rounded", -5.25, 9.9996, "temp = -5250, humidity = 10000"},
                          {"limits", -12.3, 100, "temp = -9999, humidity = 99999"}});
    }

    void textsKeepTheirColumns()
    {
        QFETCH(Climate, row);
        QCOMPARE(climateText(row.celsius, row.percent), row.text);
        QCOMPARE(lightText(row.celsius - 50), "0");
    }

    void textsBreak()
    {
        QRandomGenerator random(1);
        const QByteArray good = climateText(23.456, 45.678);
        QCOMPARE(brokenText(TextFault::None, good, random), good);
        QCOMPARE(brokenText(TextFault::Empty, good, random), "");
        QCOMPARE(brokenText(TextFault::Short, good, random), "temp = 234");
        QCOMPARE(brokenText(TextFault::Letters, good, random), "temp = xxxxx, humidity = xxxxx");
        QVERIFY(!brokenText(TextFault::Binary, good, random).startsWith("temp"));
        QVERIFY(brokenText(TextFault::Huge, good, random).size() > 1000000);
    }

    void scanShowsTheNetworks_data()
    {
        addRows<Scan>({{"sound", "steady"},
                       {"odd names", "garbage"},
                       {"fails", "no-wifi"},
                       {"hangs", "hung-scan", false}});
    }

    // The device's program cuts the names out of the scan with grep and two fixed columns.
    void scanShowsTheNetworks()
    {
        QFETCH(Scan, row);
        const Scenario scenario = *findScenario(row.scenario);
        QVERIFY(replaceFile("iwlist", scannerScript(scenario.networks, scenario.scanHangs), true));
        QProcess shell;
        shell.start("/bin/sh", {"-c", "./iwlist wlan1 scanning|grep --line-buffered ESSID"});
        QStringList names;
        while (names.size() < scenario.networks.size() && shell.waitForReadyRead()) {
            while (shell.canReadLine())
                names.append(QString(shell.readLine()).mid(27).chopped(2));
        }
        QCOMPARE(names, scenario.networks);
        QCOMPARE(shell.waitForFinished(row.ends ? 30000 : 100), row.ends);
        QCOMPARE(shell.readAllStandardError().isEmpty(), !names.isEmpty());
        shell.kill();
        shell.waitForFinished();
    }

    void storeTroubleComesAndGoes_data()
    {
        addRows<Trouble>({{"full", StoreFault::Full, true},
                          {"read-only", StoreFault::ReadOnly, true},
                          {"locked", StoreFault::Locked, false}});
    }

    void storeTroubleComesAndGoes()
    {
        QFETCH(Trouble, row);
        QSqlDatabase store = QSqlDatabase::addDatabase("QSQLITE");
        store.setDatabaseName("store.db");
        store.setConnectOptions("QSQLITE_BUSY_TIMEOUT=0");
        QVERIFY(store.open());
        const auto isSound = [&store] {
            const bool isLocked = !QSqlQuery(store).exec("begin immediate");
            QSqlQuery(store).exec("rollback");
            return !isLocked && !QFile::exists("flag");
        };
        StoreTrouble trouble({row.fault, "store.db", "flag", 100ms, 1s});
        trouble.start();
        QVERIFY(isSound());
        QTRY_VERIFY(!isSound());
        QCOMPARE(QFile::exists("flag"), row.isFlagged);
        QTRY_VERIFY(isSound());
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
        const QByteArray package = firmwarePath;
        addRows<Request>({{"package", "GET " + package + "?x=1 HTTP/1.1", "200", firmwareSize},
                          {"head alone", "HEAD " + package + " HTTP/1.1", "200"},
                          {"another path", "GET / HTTP/1.1", "404"},
                          {"another method", "POST " + package + " HTTP/1.1", "405"},
                          {"no HTTP", "no HTTP", "400"},
                          {"nothing", "", "400"}});
    }

    void serverAnswersRequests()
    {
        QFETCH(Request, row);
        const FirmwareAnswer answer =
            answerTo(row.line + "\r\n\r\n", firmwareAnswer(FirmwareFault::None));
        QCOMPARE(answer.head.mid(9, 3), row.status);
        QCOMPARE(answer.bodySize, row.bodySize);
        QVERIFY(answer.head.endsWith("\r\n\r\n"));
        QCOMPARE(firmwareBytes(0, 300).sliced(100), firmwareBytes(100, 200));
    }
};

ZELL_TEST_MAIN(TestSimulatedDevice)
#include "test_simulated_device.moc"
