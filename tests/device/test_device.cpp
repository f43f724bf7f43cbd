#include "device/Command.h"
#include "device/DevicePath.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
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
    struct Limit
    {
        const char *name;
        AtLimit atLimit;
    };

    struct Light
    {
        const char *name;
        int level;
        const char *coarse, *fine;
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

    void limitEndsAllThatWasStarted_data()
    {
        addRows<Limit>({{"at once", AtLimit::End}, {"later", AtLimit::EndLater}});
    }

    void limitEndsAllThatWasStarted()
    {
        QFETCH(Limit, row);
        mkfifo("pipe", 0600);
        const int reader = open("pipe", O_RDONLY | O_NONBLOCK);
        runCommand("exec 3> pipe; sleep 30 & sleep 30", 300ms, row.atLimit);
        char byte = 0;
        QCOMPARE(read(reader, &byte, 1), row.atLimit == AtLimit::End ? 0 : -1);
        QTRY_COMPARE(read(reader, &byte, 1), 0); // -1 as long as anybody could still write
        close(reader);
    }

    void commandIsLeftRunning()
    {
        QCOMPARE(runCommand("sleep 0.3; echo done > note", 50ms, AtLimit::LeaveRunning),
                 CommandEnd::HitLimit);
        QTRY_COMPARE(Environment::contentOf("note"), "done\n");
    }

    void lightKeepsItsRange_data()
    {
        addRows<Light>({{"darkest, not off", 7, "1\n", "1\n"},
                        {"half way", 132, "4\n", "512\n"},
                        {"brightest", 257, "7\n", "1023\n"},
                        {"below", 0, "1\n", "1\n"},
                        {"above", 300, "7\n", "1023\n"}});
    }

    void lightKeepsItsRange()
    {
        QFETCH(Light, row);
        const QString lights("/sys/class/backlight/");
        Environment::writeDeviceFile(lights + "coarse/max_brightness", "7\n");
        Environment::writeDeviceFile(lights + "fine/max_brightness", "1023\n");
        const QString command = QString("%1/baklight %2").arg(ZELL_DEPLOYED).arg(row.level);
        QCOMPARE(runCommand(command, 5s), CommandEnd::Succeeded);
        const QString folder = Environment::deviceRoot() + lights;
        QCOMPARE(Environment::contentOf(folder + "coarse/brightness"), row.coarse);
        QCOMPARE(Environment::contentOf(folder + "fine/brightness"), row.fine);
    }

    void restartEndsTheServedProgram()
    {
        QProcess program;
        program.start("sleep", {"60"});
        QVERIFY(program.waitForStarted());
        qputenv("SYSTEMD_EXEC_PID", QByteArray::number(program.processId()));
        QCOMPARE(runCommand(ZELL_DEPLOYED "/restartZellQt.sh", 5s), CommandEnd::Succeeded);
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitCode(), SIGTERM);
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
};

ZELL_TEST_MAIN(TestDevice)
#include "test_device.moc"
