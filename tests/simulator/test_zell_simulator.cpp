#include "acquisition/PM25Frame.h"
#include "shell/Global_cfg.h"
#include "simulator/ParticleSensor.h"
#include "testkit/Environment.h"
#include "testkit/TableRows.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QRegularExpression>
#include <QSerialPort>
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
                         [this] { bytes += port.readAll(); });
        QObject::connect(&port, &QSerialPort::errorOccurred, &port, [this] {
            if (port.isOpen()) // closing reports an error, too
                port.close();
        });
    }

    QString supply;
    QSerialPort port;
    QByteArray bytes;
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
    struct Mistake
    {
        const char *name;
        QStringList options;
        QByteArray named;
        int status = 2;
    };
    struct Setting
    {
        const char *name;
        QString variable, value;
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

    void mistakesAreExplained_data()
    {
        addRows<Mistake>({{"unknown option", {"--frob"}, "frob"},
                          {"unknown scenario", {"--scenario", "warm"}, "warm"},
                          {"standing still", {"--speed", "0"}, "--speed"},
                          {"speed no number", {"--speed", "nan"}, "--speed"},
                          {"seed below zero", {"--seed", "-1"}, "--seed"},
                          {"root without name", {"--root", ""}, "--root"},
                          {"root without place", {"--root", "/dev/null/x"}, "/dev/null/x", 1},
                          {"no such command", {"--", "./nothing"}, "./nothing", 127}});
    }

    void mistakesAreExplained()
    {
        QFETCH(Mistake, row);
        SimulatorProcess simulator(row.options);
        QCOMPARE(simulator.status(), row.status);
        QVERIFY(simulator.readAllStandardError().contains(row.named));
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
        // The program waits, ends by itself, or waits for its children.
        for (const char *afterwards : {"sleep 1000", "exit 0", "wait"}) {
            QFile::remove("runs");
            SimulatorProcess simulator({},
                                       "echo $PWD $ZELL_DEVICE_ROOT $ZELL_FIRMWARE_URL >> runs; "
                                       "test $(wc -l < runs) = 2 && exit 4; "
                                       "$ZELL_DEVICE_ROOT/bin/restartZellQt.sh; sleep 1000 & " +
                                           QString(afterwards));
            QCOMPARE(simulator.status(), 4);
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
        const QDeadlineTimer tooEarly(1750);
        QVERIFY(replaceFile(board.supply, "1"));
        board.port.write("UART Test = 0\r\n");
        QTRY_VERIFY(board.bytes.size() >= 2 * frameSize);
        QVERIFY2(tooEarly.hasExpired(), "one a second");
        QByteArray frame = board.bytes.first(frameSize);
        QVERIFY(PM2_5_dataHandle(&frame) != PM25_ERROR_DATA);

        QVERIFY(replaceFile(board.supply, "0"));
        qsizetype sent = 0;
        for (int second = 1; second <= 4; ++second) {
            if (second == 2)
                sent = board.bytes.size();
            const QByteArray before = Environment::contentOf(climate);
            QTRY_VERIFY(Environment::contentOf(climate) != before);
        }
        QCOMPARE(board.bytes.size(), sent);

        simulator.interrupt(SIGINT);
        QCOMPARE(simulator.status(), 0);
        QVERIFY2(QFile::exists("device/log/backlight"), "a root of one's own stays");
    }

    void unpluggedDeviceComesBack()
    {
        Board board(QDir::currentPath());
        const auto sensor = quickSensor("unplug", board);
        QVERIFY(board.port.open(QIODevice::ReadWrite));
        QTRY_VERIFY(!board.port.isOpen());
        QVERIFY(!QFile::exists(board.port.portName()));
        board.bytes.clear();
        QTRY_VERIFY(board.port.open(QIODevice::ReadWrite));
        QTRY_VERIFY(board.bytes.size() >= frameSize);
        QByteArray frame = board.bytes.first(frameSize);
        QVERIFY(PM2_5_dataHandle(&frame) != PM25_ERROR_DATA);
    }

    void scenarioIsInTheEnvironment_data()
    {
        addRows<Setting>({{"slow-sensor", "ZELL_SLOW_MS", "200"},
                          {"full-disk", "ZELL_CARD_FULL", "/faults/store"},
                          {"read-only", "ZELL_CARD_READ_ONLY", "/faults/store"},
                          {"locked-store", "LD_PRELOAD", ""}});
    }

    void scenarioIsInTheEnvironment()
    {
        QFETCH(Setting, row);
        SimulatorProcess simulator({"--scenario", row.name});
        const QString root = simulator.environmentValue("ZELL_DEVICE_ROOT");
        QCOMPARE(simulator.environmentValue(row.variable).remove(root), row.value);
        const QString library = simulator.environmentValue("LD_PRELOAD");
        QCOMPARE(QFile::exists(library), !row.value.isEmpty());
    }

    void deviceWithoutSensors()
    {
        SimulatorProcess simulator({"--scenario", "no-sensor"});
        const QString root = simulator.environmentValue("ZELL_DEVICE_ROOT");
        QVERIFY(QFile::exists(root + "/dev/Boost_En"));
        QVERIFY(!QFile::exists(root + "/dev/ttyUSB0"));
        QVERIFY(!QFile::exists(root + "/sys"));
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
};

ZELL_TEST_MAIN(TestZellSimulator)
#include "test_zell_simulator.moc"
