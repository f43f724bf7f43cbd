#include "device/Command.h"
#include "device/DevicePath.h"
#include "device/RegularFile.h"
#include "device/SensorReader.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"

#include <QDeadlineTimer>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace std::chrono_literals;

class TestDevice : public QObject
{
    Q_OBJECT

    struct Command
    {
        const char *name, *text;
        CommandEnd end;
    };
    struct Driver
    {
        const char *name, *milliseconds;
        QByteArray text = {};
    };

private slots:
    void endIsTold_data()
    {
        addRows<Command>({{"succeeding", "true | cat", CommandEnd::Succeeded},
                          {"failing", "exit 3", CommandEnd::Failed},
                          {"missing", "/no/such/tool", CommandEnd::Failed},
                          {"killed", "kill -9 $$", CommandEnd::Failed},
                          {"reader gone", "while :; do echo; done | exit 0", CommandEnd::Succeeded},
                          {"hanging", "trap '' TERM; sleep 30", CommandEnd::HitLimit}});
    }

    void endIsTold()
    {
        QFETCH(Command, row);
        MessageLog log;
        const QDeadlineTimer patience(1500);
        signal(SIGPIPE, SIG_IGN);
        QCOMPARE(runCommand(row.text, 300ms), row.end);
        QVERIFY(!patience.hasExpired());
        QCOMPARE(log.lines().size(), row.end == CommandEnd::Succeeded ? 0 : 1);
    }

    void limitEndsAllThatWasStarted()
    {
        mkfifo("pipe", 0600);
        for (const AtLimit atLimit : {AtLimit::End, AtLimit::EndLater}) {
            const int reader = open("pipe", O_RDONLY | O_NONBLOCK);
            runCommand("exec 3> pipe; sleep 30 & sleep 30", 300ms, atLimit);
            // Ends as soon as nobody can write any more; later takes a turn of the event loop.
            pollfd end{.fd = reader, .events = 0, .revents = 0};
            const bool isAtOnce = atLimit == AtLimit::End;
            QCOMPARE(poll(&end, 1, isAtOnce ? 5000 : 0), int(isAtOnce));
            QTRY_COMPARE(poll(&end, 1, 0), 1);
            close(reader);
        }
    }

    void commandIsLeftRunning()
    {
        QCOMPARE(runCommand("sleep 0.3; echo done > note", 50ms, AtLimit::LeaveRunning),
                 CommandEnd::HitLimit);
        QTRY_COMPARE(Environment::contentOf("note"), "done\n");
    }

    void lightKeepsItsRange()
    {
        const QString lights("/sys/class/backlight/");
        Environment::writeDeviceFile(lights + "coarse/max_brightness", "7\n");
        Environment::writeDeviceFile(lights + "fine/max_brightness", "1023\n");
        const auto brightnessAt = [folder = Environment::deviceRoot() + lights](int level) {
            runCommand(QString("%1/baklight %2").arg(ZELL_DEPLOYED).arg(level), 5s);
            return Environment::contentOf(folder + "coarse/brightness") +
                   Environment::contentOf(folder + "fine/brightness");
        };
        QCOMPARE(brightnessAt(7), "1\n1\n"); // dark, but never off
        QCOMPARE(brightnessAt(132), "4\n512\n");
        QCOMPARE(brightnessAt(257), "7\n1023\n");
        QCOMPARE(brightnessAt(0), "1\n1\n");
        QCOMPARE(brightnessAt(300), "7\n1023\n");
    }

    void restartEndsTheServedProgram()
    {
        // Not by fork(): the signal could meet it before it is another program.
        char name[] = "sleep", seconds[] = "60";
        char *arguments[] = {name, seconds, nullptr};
        pid_t program = 0;
        QCOMPARE(posix_spawnp(&program, name, nullptr, nullptr, arguments, environ), 0);
        qputenv("SYSTEMD_EXEC_PID", QByteArray::number(program));
        QCOMPARE(runCommand(ZELL_DEPLOYED "/restartZellQt.sh", 5s), CommandEnd::Succeeded);
        int status = 0;
        QCOMPARE(waitpid(program, &status, 0), program);
        QCOMPARE(WTERMSIG(status), SIGTERM);
    }

    void fileMayBeHuge()
    {
        QVERIFY(simulator::replaceFile("huge", "text"));
        QVERIFY(QFile::resize("huge", 3LL << 30)); // without using the disk
        QCOMPARE(readRegularFile("huge", 4), "text");
    }

    void rootIsPutInFront()
    {
        for (const QByteArray root : {"/tmp/a b", ""}) {
            qputenv("ZELL_DEVICE_ROOT", root);
            QCOMPARE(devicePath("/dev/Boost_En"), root + "/dev/Boost_En");
            QCOMPARE(deviceSerialPort("tty"), root.isEmpty() ? "tty" : root + "/dev/tty");
        }
    }

    void shellSeesOneWord()
    {
        const QString word = " a  b'c\"$(id);`id`|id&\\\n";
        const QString words = shellQuoted(word) + ' ' + shellQuoted("");
        runCommand("printf '[%s]' " + words + " > words", 1s);
        QCOMPARE(Environment::contentOf("words"), '[' + word + "][]");
        QCOMPARE(shellQuoted("/a-b_c.9/Z"), "/a-b_c.9/Z");
    }

    // The last test: a driver outlives its readers, and in the end the program.
    void driverIsLeftToItself_data()
    {
        addRows<Driver>({{"hanging", "400"},
                         {"slow", "20", "reading"},
                         {"quick", "0", "reading"},
                         {"hanging at the end", "900"}});
    }

    void driverIsLeftToItself()
    {
        QFETCH(Driver, row);
        qputenv("ZELL_SLOW_FILE", "sensor");
        qputenv("ZELL_SLOW_MS", row.milliseconds);
        QVERIFY(simulator::replaceFile("sensor", "reading"));
        SensorReader readers[2];
        // A literal: the counter of another text would order what both threads do.
        for (SensorReader &reader : readers)
            QCOMPARE(reader.read(QStringLiteral("sensor")), row.text);
    }
};

ZELL_TEST_MAIN(TestDevice)
#include "test_device.moc"
