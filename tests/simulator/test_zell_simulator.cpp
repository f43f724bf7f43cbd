#include "acquisition/PM25Frame.h"
#include "shell/Global_cfg.h"
#include "simulator/DeviceRoot.h"
#include "simulator/FirmwareAnswer.h"
#include "simulator/ParticleSensor.h"
#include "simulator/SensorFrame.h"
#include "testkit/Environment.h"
#include "tests/simulator/SimulatorProcess.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSerialPort>
#include <QSignalSpy>
#include <csignal>

using namespace simulator;

namespace {
bool isGood(QByteArray burst)
{
    return burst.size() == frameSize && PM2_5_dataHandle(&burst) != PM25_ERROR_DATA;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

/// Waits until the device in @p root has written its next second.
bool waitForSecond(const QString &root)
{
    const QString path = DeviceRoot(root).climateFile();
    const QByteArray before = contentOf(path);
    return QTest::qWaitFor([&] { return contentOf(path) != before; });
}

/// How many processes run with the device root @p root.
qsizetype processesOn(const QByteArray &root)
{
    const QStringList processes = QDir("/proc").entryList({"[1-9]*"});
    return std::count_if(processes.cbegin(), processes.cend(), [&](const QString &process) {
        return contentOf("/proc/" + process + "/environ").contains("ZELL_DEVICE_ROOT=" + root);
    });
}

/// What a program sees of the particle sensor.
struct Board
{
    explicit Board(const QString &root)
        : supply(root + "/dev/Boost_En")
        , port(root + "/dev/ttyUSB0")
    {
        QObject::connect(&port, &QSerialPort::readyRead, &port,
                         [this] { bursts.append(port.readAll()); });
        QObject::connect(&port, &QSerialPort::errorOccurred, &port, [this] {
            if (port.isOpen()) // closing reports an error, too
                port.close();
        });
    }

    bool switchSupply(const char *position)
    {
        QFile file(supply);
        return file.open(QIODevice::ReadWrite) && file.write(position) == 1;
    }

    QString supply;
    QSerialPort port;
    QList<QByteArray> bursts;
};

/// The sensor of @p board in @p scenario, switched on, five times as fast as a real one.
std::unique_ptr<ParticleSensor> quickSensor(const QString &scenario, const Board &board)
{
    using namespace std::chrono_literals;
    auto sensor = std::make_unique<ParticleSensor>(
        *findScenario(scenario),
        ParticleSensor::Settings{.serialDevice = board.port.portName(),
                                 .supplySwitch = board.supply,
                                 .framePeriod = 200ms,
                                 .burstPause = 100ms,
                                 .unpluggedFor = 500ms},
        [] { return 42; });
    return replaceFile(board.supply, "1") && sensor->start() ? std::move(sensor) : nullptr;
}
} // namespace

class TestZellSimulator : public QObject
{
    Q_OBJECT

private slots:
    void commandRunsOnTheDevice_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("output");
        QTest::newRow("exit status") << "exit 7" << 7 << QByteArray();
        QTest::newRow("killed") << "kill -9 $$" << 137 << QByteArray();
        QTest::newRow("input") << "read line; echo \"$line\"" << 0 << QByteArray("typed\n");
        QTest::newRow("address") << "echo ${ZELL_FIRMWARE_URL##*/}; echo ${no_proxy##*,}" << 0
                                 << QByteArray("ZellQt-1.1.pkg\n127.0.0.1\n");
        QTest::newRow("scanner") << "test $(command -v iwlist) -ef $ZELL_DEVICE_ROOT/sbin/iwlist"
                                 << 0 << QByteArray();
        QTest::newRow("backlight") << "cd $ZELL_DEVICE_ROOT; bin/qtapp/baklight 10; "
                                      "bin/qtapp/baklight 7; cat log/backlight"
                                   << 0 << QByteArray("10\n7\n");
        QTest::newRow("supply is off")
            << "cat $ZELL_DEVICE_ROOT/dev/Boost_En" << 0 << QByteArray("0");
        QTest::newRow("leaves children behind")
            << "sleep 1000 & setsid sh -c 'trap \"\" TERM; mkdir $ZELL_DEVICE_ROOT/up; sleep 1000' "
               "& "
               "until test -d $ZELL_DEVICE_ROOT/up; do sleep 0.01; done; exit 3"
            << 3 << QByteArray();
    }

    void commandRunsOnTheDevice()
    {
        QFETCH(QString, command);
        SimulatorProcess simulator({}, "echo $ZELL_DEVICE_ROOT; " + command);
        simulator.write("typed\n");
        QTEST(simulator.status(), "status");
        const QByteArray root = simulator.output.left(simulator.output.indexOf('\n'));
        QTEST(simulator.output.sliced(root.size() + 1), "output");
        QVERIFY(root.startsWith('/'));
        QVERIFY2(!QFile::exists(root), "the temporary root is gone");
        QCOMPARE(processesOn(root), 0);
    }

    void mistakesAreExplained_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("named");
        QTest::newRow("option") << QStringList{"--frob"} << 2 << QByteArray("frob");
        QTest::newRow("scenario") << QStringList{"--scenario", "warm"} << 2 << QByteArray("warm");
        QTest::newRow("speed") << QStringList{"--speed", "0"} << 2 << QByteArray("--speed");
        QTest::newRow("no number") << QStringList{"--speed", "nan"} << 2 << QByteArray("--speed");
        QTest::newRow("seed") << QStringList{"--seed", "-1"} << 2 << QByteArray("--seed");
        QTest::newRow("no root") << QStringList{"--root", ""} << 2 << QByteArray("--root");
        QTest::newRow("bad root") << QStringList{"--root", "/dev/null/x"} << 1
                                  << QByteArray("/dev/null/x");
        QTest::newRow("no command")
            << QStringList{"--", "./nothing"} << 127 << QByteArray("./nothing");
    }

    void mistakesAreExplained()
    {
        QFETCH(QStringList, options);
        SimulatorProcess simulator(options);
        QTEST(simulator.status(), "status");
        QFETCH(QByteArray, named);
        QVERIFY2(simulator.errors.contains(named), simulator.errors.constData());
    }

    void interruptEndsBoth_data()
    {
        QTest::addColumn<int>("signalNumber");
        QTest::addColumn<QString>("onTerminate");
        QTest::addColumn<int>("status");
        QTest::newRow("tidy, Ctrl-C") << SIGINT << "exit 5" << 5;
        QTest::newRow("tidy, terminated") << SIGTERM << "exit 5" << 5;
        QTest::newRow("tidy, terminal closed") << SIGHUP << "exit 5" << 5;
        QTest::newRow("stubborn, twice") << SIGINT << "" << 137;
    }

    void interruptEndsBoth()
    {
        QFETCH(int, signalNumber);
        QFETCH(QString, onTerminate);
        SimulatorProcess simulator({}, "trap 'echo asked; " + onTerminate +
                                           "' TERM; sleep 1000 & "
                                           "echo $ZELL_DEVICE_ROOT ready; while :; do wait; done");
        QVERIFY(simulator.says("ready"));
        const QByteArray root = simulator.output.left(simulator.output.indexOf(' '));
        QVERIFY(processesOn(root) > 0);
        simulator.interrupt(signalNumber);
        QVERIFY(simulator.says("asked"));
        QElapsedTimer sinceAsked;
        sinceAsked.start();
        if (onTerminate.isEmpty())
            simulator.interrupt(signalNumber);
        QTEST(simulator.status(), "status");
        QVERIFY2(sinceAsked.elapsed() < 2500, "the time to end tidily was not waited for");
        QCOMPARE(processesOn(root), 0);
        QVERIFY2(!QFile::exists(root), "the temporary root is gone");
    }

    void restartScriptRestarts_data()
    {
        QTest::addColumn<QString>("afterwards");
        QTest::newRow("program waits") << "sleep 1000";
        QTest::newRow("program ends by itself") << "exit 0";
        QTest::newRow("program waits for a script that is slow") << "wait";
    }

    void restartScriptRestarts()
    {
        QFETCH(QString, afterwards);
        QFile::remove("runs");
        SimulatorProcess simulator({}, "echo $PWD $ZELL_DEVICE_ROOT $ZELL_FIRMWARE_URL >> runs; "
                                       "test $(wc -l < runs) = 2 && exit 4; "
                                       "$ZELL_DEVICE_ROOT/bin/restartZellQt.sh; sleep 1000 & " +
                                           afterwards);
        QCOMPARE(simulator.status(), 4);
        const QList<QByteArray> runs = contentOf("runs").split('\n');
        QCOMPARE(runs.size(), 3);
        QCOMPARE(runs.at(0), runs.at(1));
    }

    void framesFlowWithTheSupply()
    {
        SimulatorProcess simulator({"--root", "device"});
        Board board(simulator.environmentValue("ZELL_DEVICE_ROOT"));
        QVERIFY(board.port.open(QIODevice::ReadWrite));
        QVERIFY(board.switchSupply("1"));
        board.port.write("UART Test = 0\r\n");
        QElapsedTimer sinceFirst;
        QTRY_COMPARE(board.bursts.size(), 1);
        sinceFirst.start();
        QTRY_COMPARE(board.bursts.size(), 2);
        QVERIFY2(sinceFirst.elapsed() > 750, "one a second");
        for (const QByteArray &burst : board.bursts)
            QVERIFY(isGood(burst));

        QVERIFY(board.switchSupply("0"));
        QVERIFY(waitForSecond("device") && waitForSecond("device"));
        QCOMPARE(board.bursts.size(), 2);

        simulator.interrupt(SIGINT);
        QCOMPARE(simulator.status(), 0);
        QVERIFY2(QFile::exists("device/log/backlight"), "a root of one's own stays");
    }

    void lineLosesWhatNobodyHears()
    {
        Board board(QDir::currentPath());
        QVERIFY(QDir().mkpath("dev"));
        SerialLine line(board.port.portName());
        QVERIFY(line.plugIn());
        QVERIFY(!line.send("lost"));
        QVERIFY(board.port.open(QIODevice::ReadWrite));
        QVERIFY(line.send("heard"));
        QTRY_COMPARE(board.bursts, QList<QByteArray>{"heard"});
    }

    void unpluggedDeviceComesBack()
    {
        Board board(QDir::currentPath());
        const auto sensor = quickSensor("unplug", board);
        QVERIFY(board.port.open(QIODevice::ReadWrite));
        QTRY_VERIFY(!board.port.isOpen());
        QCOMPARE(board.bursts.size(), 4);
        QVERIFY(!QFile::exists(board.port.portName()));
        QTRY_VERIFY(board.port.open(QIODevice::ReadWrite));
        QTRY_COMPARE(board.bursts.size(), 5);
        QVERIFY(isGood(board.bursts.last()));
    }

    void garbageIsSentAsItIs()
    {
        Board board(QDir::currentPath());
        const auto sensor = quickSensor("garbage", board);
        QVERIFY(board.port.open(QIODevice::ReadWrite));
        QTRY_COMPARE(board.bursts.size(), 9);
        QList<qsizetype> sizes;
        for (const QByteArray &burst : board.bursts)
            sizes.append(burst.size());
        QCOMPARE(sizes, (QList<qsizetype>{60, 60, 30, 30, 120, 59, 61, 60, 20}));
        QVERIFY(isGood(board.bursts.at(0)) && !isGood(board.bursts.at(1)));
    }

    void deviceWithoutSensors()
    {
        SimulatorProcess simulator({"--scenario", "no-sensor"});
        const QString root = simulator.environmentValue("ZELL_DEVICE_ROOT");
        QVERIFY(QFile::exists(root + "/dev/Boost_En"));
        QVERIFY(!QFile::exists(root + "/dev/ttyUSB0") && !QFile::exists(root + "/sys"));
    }

    void filesAreReplacedAsAWhole()
    {
        SimulatorProcess simulator({"--speed", "20000", "--scenario", "cold"});
        const QString path =
            DeviceRoot(simulator.environmentValue("ZELL_DEVICE_ROOT")).climateFile();
        QFile held(path);
        QVERIFY(held.open(QIODevice::ReadOnly));
        const QByteArray text = held.readAll();
        QVERIFY2(text.size() == 30 && text.startsWith("temp = -"), text.constData());
        QTRY_VERIFY(contentOf(path) != text);
        QVERIFY(held.seek(0));
        QCOMPARE(held.readAll(), text); // who reads it keeps the old file to the end
        QVERIFY2(QFile::remove(path), "a lost file");
        QTRY_VERIFY(QFile::exists(path));
    }

    void downloadsFailInTurn()
    {
        SimulatorProcess simulator({"--scenario", "bad-firmware"});
        const QUrl url(simulator.environmentValue("ZELL_FIRMWARE_URL"));
        using Reply = QNetworkReply;
        constexpr qint64 whole = firmwareSize;
        const Download downloads[] = {
            {"refused", Reply::ContentAccessDenied, 0, 0},
            {"cut off", Reply::RemoteHostClosedError, whole / 2, whole},
            {"stalled", Reply::OperationCanceledError, 16 * kibibyte, whole},
            {"endless", Reply::OperationCanceledError, 2 * whole, -1},
            {"unknown length", Reply::NoError, whole, -1},
            {"zero report", Reply::NoError, 0, 0},
            {"refused again", Reply::ContentAccessDenied, 0, 0},
        };
        for (const Download &expected : downloads)
            compareDownload(url, expected);
    }

private:
    struct Download
    {
        const char *fault;
        QNetworkReply::NetworkError error; ///< cancelled: does not end by itself
        qint64 received;                   ///< bytes of body; cancelled at so many
        qint64 total;                      ///< as the progress reports it
    };

    static void compareDownload(const QUrl &url, const Download &expected)
    {
        QNetworkAccessManager client;
        const std::unique_ptr<QNetworkReply> reply(client.get(QNetworkRequest(url)));
        QSignalSpy progress(reply.get(), &QNetworkReply::downloadProgress);
        const bool neverEnds = expected.error == QNetworkReply::OperationCanceledError;
        const bool done = QTest::qWaitFor(
            [&] {
                return reply->isFinished() ||
                       (neverEnds && reply->bytesAvailable() >= expected.received);
            },
            10000);
        QVERIFY2(done && reply->isFinished() != neverEnds, expected.fault);
        const qint64 received = reply->bytesAvailable();
        QVERIFY2(neverEnds ? received >= expected.received : received == expected.received,
                 expected.fault);
        reply->abort();
        QCOMPARE(reply->error(), expected.error);
        const QList<QVariant> report = progress.value(0);
        QCOMPARE(report.value(0).toLongLong() == 0, expected.received == 0);
        QCOMPARE(report.value(1).toLongLong(), expected.total);
    }
};

ZELL_TEST_MAIN(TestZellSimulator)
#include "test_zell_simulator.moc"
