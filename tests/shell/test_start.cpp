#include "shell/MainWindow.h"
#include "simulator/FirmwareServer.h"
#include "testkit/CallSlot.h"
#include "testkit/PseudoTerminal.h"
#include "testkit/TableRows.h"

#include <QProcess>
#include <QStackedWidget>
#include <csignal>

class TestStart : public QObject
{
    Q_OBJECT

    struct Moment
    {
        const char *name;
        int signal;
        QByteArray calls;              ///< of slots, as the session plug-in takes them
        QByteArray sign;               ///< in the output, that the moment has come
        const char *hanging = nullptr; ///< what of the device is a program that hangs
    };

    struct Program : QProcess
    {
        Program()
        {
            setProcessChannelMode(MergedChannels);
            start(ZELL_PROGRAM, {});
        }
        ~Program() override
        {
            kill();
            waitForFinished();
        }
        bool says(const QByteArray &text)
        {
            return QTest::qWaitFor([&] { return (output += readAll()).contains(text); }, 20000);
        }
        QByteArray output;
    };

private slots:
    void initTestCase()
    {
        qputenv("QT_PLUGIN_PATH", ZELL_SESSION);
        qputenv("QT_QPA_GENERIC_PLUGINS", "zellsession");
        QVERIFY(Environment::device().setNetworks({"Studio"}));
    }

    // What must stand before the first screen is built: the database and the scheduler.
    void measurementSideFirst()
    {
        const QString supply = Environment::device().supplySwitch();
        for (const char *known : {"DB is not exist,need to create!", "DB is exist!"}) {
            QVERIFY(simulator::replaceFile(supply, "1")); // as a program leaves it that was killed
            Program program;
            QVERIFY(program.says("add Font:"));
            const QByteArray before = program.output.first(program.output.indexOf("add Font:"));
            QCOMPARE(before.count("DB is "), 1); // opened by the first scheduler
            QVERIFY(before.contains(known));
            QCOMPARE(Environment::contentOf(supply), "0");
        }
    }

    void signalEndsItAll_data()
    {
        addRows<Moment>(
            {{"starting", SIGINT, "", "add Font:"},
             {"measuring", SIGTERM, "PmPage.ShowAnimation", "UART listening for data"},
             {"measuring without line", SIGINT, "PmPage.ShowAnimation", "device failed to open",
              "/dev/ttyUSB0"},
             {"connecting", SIGINT, "OptionPage.jump_setWifi_page,listView.0", "Click"},
             {"scanning", SIGTERM, "OptionPage.jump_setWifi_page", "hanging", "/sbin/iwlist"},
             {"downloading", SIGTERM,
              "OptionPage.jump_updateFirmware_page,updateFirmware.download_newVersion",
              "iBytesReceive is"},
             {"restarting", SIGTERM,
              "OptionPage.jump_setLanguage_page,setLanguagePage.on_button_back_clicked", "hanging",
              "/bin/restartZellQt.sh"}});
    }

    void signalEndsItAll()
    {
        QFETCH(Moment, row);
        const PseudoTerminal line;
        simulator::FirmwareServer server({firmwareAnswer(simulator::FirmwareFault::Endless)});
        QVERIFY(server.listen());
        qputenv("ZELL_FIRMWARE_URL", server.url().toLatin1());
        if (row.hanging)
            Environment::writeDeviceScript(row.hanging, "echo hanging >&2; exec sleep 8");
        qputenv("ZELL_SESSION_CALLS", row.calls);
        Program program;
        QVERIFY(program.says(row.sign));
        ::kill(pid_t(program.processId()), row.signal);
        QVERIFY(program.waitForFinished(1000));
        QCOMPARE(program.exitCode(), 0);
        QCOMPARE(Environment::contentOf(Environment::device().supplySwitch()), "0");
    }

    void settingsSlideInTwice()
    {
        MainWindow window;
        QCOMPARE(window.size(), QSize(854, 480));
        window.show();
        auto *stack = window.findChild<QStackedWidget *>("stackedWidget");
        auto *page = window.findChild<QWidget *>("page_option");
        window.jump_toOption();
        window.jump_toOption();
        QVERIFY(page->isVisible());
        QCOMPARE(page->x(), 854);
        QCOMPARE(stack->currentIndex(), 1);
        QTRY_COMPARE(stack->currentIndex(), 2);
        callSlot(window.findChild<QWidget *>("OptionPage"), "signal_back_lastPage");
        QVERIFY(!page->isVisible());
        QCOMPARE(stack->currentIndex(), 1);
    }
};

ZELL_TEST_MAIN(TestStart)
#include "test_start.moc"
