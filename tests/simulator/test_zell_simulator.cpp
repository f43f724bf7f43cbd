#include "acquisition/PM25Frame.h"
#include "shell/Global_cfg.h"
#include "simulator/ParticleSensor.h"
#include "testkit/Environment.h"
#include "testkit/TableRows.h"

#include <QDeadlineTimer>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProcess>
#include <QRegularExpression>
#include <QSerialPort>
#include <QSignalSpy>
#include <csignal>
#include <sys/prctl.h>

using namespace simulator;

namespace {
/// The real zell-simulator as a process of its own, in the current working directory.
class SimulatorProcess : public QProcess
{
public:
    explicit SimulatorProcess(QStringList options, const QString &shellCommand = {})
    {
        if (!shellCommand.isEmpty())
            options += QStringList{"--", "sh", "-c", shellCommand};
        // Does not outlive a test program that crashes.
        setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
        start(ZELL_SIMULATOR, options);
    }

    /// Interrupts it where it still runs, so that it takes its own root away.
    ~SimulatorProcess() override
    {
        terminate();
        waitForFinished();
    }

    /// Waits for the end; -1 where it does not come.
    int status()
    {
        const bool ended = QTest::qWaitFor([this] { return state() == NotRunning; }, 30000);
        output += readAllStandardOutput();
        return ended && exitStatus() == NormalExit ? exitCode() : -1;
    }

    bool says(const QByteArray &text)
    {
        return QTest::qWaitFor([&] { return (output += readAllStandardOutput()).contains(text); },
                               10000);
    }

    /// The value of @p variable among the lines printed without a command; waits for them.
    QString environmentValue(const QString &variable)
    {
        const QRegularExpression line("export " + variable + "='?([^'\n]*)'?\n");
        return says("export PATH=") ? line.match(output).captured(1) : QString();
    }

    void interrupt(int signalNumber) { ::kill(pid_t(processId()), signalNumber); }

    QByteArray output;
};

/// How many processes run with the device root @p root.
qsizetype processesOn(const QByteArray &root)
{
    const QStringList processes = QDir("/proc").entryList({"[1-9]*"});
    return std::count_if(processes.cbegin(), processes.cend(), [&](const QString &process) {
        return Environment::contentOf("/proc/" + process + "/environ")
            .contains("ZELL_DEVICE_ROOT=" + root);
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

    struct Run
    {
        const char *name, *command;
        int status;
        QByteArray output = {};
    };
    struct Interrupt
    {
        const char *name;
        int signal;
        QByteArray onTerminate;
        int status;
    };
    struct Download
    {
        const char *fault;
        QNetworkReply::NetworkError error; ///< cancelled: does not end by itself
        qint64 received;                   ///< bytes of body; cancelled at so many
        qint64 total;                      ///< as the progress reports it
    };

private slots:
    void commandRunsOnTheDevice_data()
    {
        addRows<Run>(
            {{"exit status", "exit 7", 7},
             {"killed", "kill -9 $$", 137},
             {"input", "read line; echo \"$line\"", 0, "typed\n"},
             {"address", "echo ${ZELL_FIRMWARE_URL##*/}; echo ${no_proxy##*,}", 0,
              "ZellQt-1.1.pkg\n127.0.0.1\n"},
             {"scanner", "test $(command -v iwlist) -ef $ZELL_DEVICE_ROOT/sbin/iwlist", 0},
             {"backlight, supply is off",
              "cd $ZELL_DEVICE_ROOT/bin/qtapp; ./baklight 10; ./baklight 7; cd ../..; "
              "cat log/backlight dev/Boost_En",
              0, "10\n7\n0"},
             {"leaves children behind",
              "sleep 1000 & setsid sh -c 'trap \"\" TERM; mkdir $ZELL_DEVICE_ROOT/up; sleep 1000' &"
              "until test -d $ZELL_DEVICE_ROOT/up; do sleep 0.01; done; exit 3",
              3}});
    }

    void commandRunsOnTheDevice()
    {
        QFETCH(Run, row);
        SimulatorProcess simulator({}, QString("echo $ZELL_DEVICE_ROOT; ") + row.command);
        simulator.write("typed\n");
        QCOMPARE(simulator.status(), row.status);
        const QByteArray root = simulator.output.left(simulator.output.indexOf('\n'));
        QCOMPARE(simulator.output.sliced(root.size() + 1), row.output);
        QVERIFY(root.startsWith('/'));
        QVERIFY2(!QFile::exists(root), "the temporary root is gone");
        QCOMPARE(processesOn(root), 0);
    }

    void mistakesAreExplained()
    {
        struct Mistake
        {
            const char *named;
            QStringList options;
            int status = 2;
        };
        for (const Mistake &mistake : {Mistake{"frob", {"--frob"}},
                                       {"warm", {"--scenario", "warm"}},
                                       {"--speed", {"--speed", "0"}},
                                       {"--speed", {"--speed", "nan"}},
                                       {"--seed", {"--seed", "-1"}},
                                       {"--root", {"--root", ""}},
                                       {"/dev/null/x", {"--root", "/dev/null/x"}, 1},
                                       {"./nothing", {"--", "./nothing"}, 127}}) {
            SimulatorProcess simulator(mistake.options);
            QVERIFY2(simulator.status() == mistake.status, mistake.named);
            QVERIFY2(simulator.readAllStandardError().contains(mistake.named), mistake.named);
        }
    }

    void interruptEndsBoth_data()
    {
        addRows<Interrupt>({{"tidy, Ctrl-C", SIGINT, "exit 5", 5},
                            {"tidy, terminated", SIGTERM, "exit 5", 5},
                            {"tidy, terminal closed", SIGHUP, "exit 5", 5},
                            {"stubborn, twice", SIGINT, "", 137}});
    }

    void interruptEndsBoth()
    {
        QFETCH(Interrupt, row);
        SimulatorProcess simulator({}, "trap 'echo asked; " + row.onTerminate +
                                           "' TERM; sleep 1000 & "
                                           "echo $ZELL_DEVICE_ROOT ready; while :; do wait; done");
        QVERIFY(simulator.says("ready"));
        const QByteArray root = simulator.output.left(simulator.output.indexOf(' '));
        QVERIFY(processesOn(root) > 0);
        simulator.interrupt(row.signal);
        QVERIFY(simulator.says("asked"));
        const QDeadlineTimer patience(2500);
        if (row.onTerminate.isEmpty())
            simulator.interrupt(row.signal);
        QCOMPARE(simulator.status(), row.status);
        QVERIFY2(!patience.hasExpired(), "the time to end tidily was not waited for");
        QCOMPARE(processesOn(root), 0);
        QVERIFY2(!QFile::exists(root), "the temporary root is gone");
    }

    void restartScriptRestarts()
    {
        // The program waits, ends by itself, waits for a script that is slow.
        for (const QString afterwards : {"sleep 1000", "exit 0", "wait"}) {
            QFile::remove("runs");
            SimulatorProcess simulator({},
                                       "echo $PWD $ZELL_DEVICE_ROOT $ZELL_FIRMWARE_URL >> runs; "
                                       "test $(wc -l < runs) = 2 && exit 4; "
                                       "$ZELL_DEVICE_ROOT/bin/restartZellQt.sh; sleep 1000 & " +
                                           afterwards);
            QVERIFY2(simulator.status() == 4, qPrintable(afterwards));
            const QList<QByteArray> runs = Environment::contentOf("runs").split('\n');
            QCOMPARE(runs.size(), 3);
            QCOMPARE(runs.at(0), runs.at(1));
        }
    }

    void framesFlowWithTheSupply()
    {
        SimulatorProcess simulator({"--root", "device"});
        const QString climate = DeviceRoot("device").climateFile();
        Board board(simulator.environmentValue("ZELL_DEVICE_ROOT"));
        QVERIFY(board.port.open(QIODevice::ReadWrite));
        QFile supply(board.supply);
        QVERIFY(supply.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
        supply.write("1");
        board.port.write("UART Test = 0\r\n");
        QTRY_COMPARE(board.bursts.size(), 1);
        const QDeadlineTimer tooEarly(750);
        QTRY_COMPARE(board.bursts.size(), 2);
        QVERIFY2(tooEarly.hasExpired(), "one a second");
        for (QByteArray &burst : board.bursts)
            QVERIFY(PM2_5_dataHandle(&burst) != PM25_ERROR_DATA);

        QVERIFY(supply.seek(0));
        supply.write("0");
        for (int second = 1; second <= 2; ++second) {
            const QByteArray before = Environment::contentOf(climate);
            QTRY_VERIFY(Environment::contentOf(climate) != before);
        }
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
        QVERIFY(PM2_5_dataHandle(&board.bursts.last()) != PM25_ERROR_DATA);
    }

    void garbageIsSentAsItIs()
    {
        Board board(QDir::currentPath());
        const auto sensor = quickSensor("garbage", board);
        QVERIFY(board.port.open(QIODevice::ReadWrite));
        QTRY_COMPARE(board.bursts.size(), 9);
        for (const qsizetype size : {60, 60, 30, 30, 120, 59, 61, 60, 20})
            QCOMPARE(board.bursts.takeFirst().size(), size);
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
        QTRY_VERIFY(Environment::contentOf(path) != text);
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
        for (const Download &expected : downloads) {
            QNetworkAccessManager client;
            const std::unique_ptr<Reply> reply(client.get(QNetworkRequest(url)));
            QSignalSpy progress(reply.get(), &Reply::downloadProgress);
            const bool neverEnds = expected.error == Reply::OperationCanceledError;
            const qint64 cancelledAt = neverEnds ? expected.received : 3 * whole;
            const bool done = QTest::qWaitFor(
                [&] { return reply->isFinished() || reply->bytesAvailable() >= cancelledAt; },
                10000);
            QVERIFY2(done && reply->isFinished() != neverEnds, expected.fault);
            if (!neverEnds)
                QCOMPARE(reply->bytesAvailable(), expected.received);
            reply->abort();
            QCOMPARE(reply->error(), expected.error);
            const QList<QVariant> report = progress.value(0);
            QCOMPARE(report.value(0).toLongLong() == 0, expected.received == 0);
            QCOMPARE(report.value(1).toLongLong(), expected.total);
        }
    }
};

ZELL_TEST_MAIN(TestZellSimulator)
#include "test_zell_simulator.moc"
