#include "shell/MainWindow.h"
#include "shell/Watchdog.h"
#include "simulator/FirmwareServer.h"
#include "simulator/NotifySocket.h"
#include "testkit/CallSlot.h"
#include "testkit/PictureCompare.h"
#include "testkit/PseudoTerminal.h"
#include "testkit/TableRows.h"
#include "walk/Languages.h"

#include <QProcess>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryFile>
#include <QThread>
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
        QByteArray url = {};           ///< of the package, where a name stands for the server
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
        qputenv("ZELL_NAMES_MS", "8000");
        qputenv("ASAN_OPTIONS", "verify_asan_link_order=0");
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

    void speaksTheStoredLanguage()
    {
        const Language language(QStringLiteral("ZH_COMPLEX.qm"));
        const QTemporaryDir folder;
        {
            const InLanguage spoken(language);
            MainWindow window;
            window.show();
            window.jump_toOption();
            QTRY_COMPARE(window.findChild<QStackedWidget *>("stackedWidget")->currentIndex(), 2);
            QVERIFY(window.grab().save(folder.filePath("menu.png")));
        }
        QTemporaryFile frame;
        QVERIFY(frame.open() && frame.resize(qint64(854) * 480 * 4));
        qputenv("QT_QPA_PLATFORM", "linuxfb:tty=/dev/null:nographicsmodeswitch:fb=" +
                                       QFile::encodeName(frame.fileName()));
        qputenv("LD_PRELOAD", ZELL_FRAME_BUFFER);
        qputenv("ZELL_SESSION_CALLS", "MainWindow.jump_toOption");
        language.store();
        Program program;
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qunsetenv("LD_PRELOAD");

        QString difference;
        const auto agrees = [&] {
            const QByteArray dots = Environment::contentOf(frame.fileName());
            const QImage seen(reinterpret_cast<const uchar *>(dots.constData()), 854, 480,
                              QImage::Format_RGB32);
            difference = pictureDifference(seen, folder.path(), QStringLiteral("menu.png"));
            return difference.isEmpty();
        };
        QVERIFY2(QTest::qWaitFor(agrees, 20000), qPrintable(difference));
    }

    void beatComesFromTheEventLoop()
    {
        const simulator::NotifySocket socket;
        QSignalSpy texts(&socket, &simulator::NotifySocket::received);
        qputenv("NOTIFY_SOCKET", socket.address());
        qputenv("WATCHDOG_USEC", "200000");
        QWidget screen;
        const Watchdog watchdog(screen);
        QVERIFY(!texts.wait(200)); // nothing is painted yet
        screen.show();
        QTRY_VERIFY(texts.size() > 3);
        QCOMPARE(texts.takeFirst().constFirst().toByteArray(), "READY=1");
        QCOMPARE(texts.constFirst().constFirst().toByteArray(), "WATCHDOG=1");

        texts.clear();
        QThread::msleep(600); // frozen for a dozen beats
        QCoreApplication::processEvents();
        QVERIFY(texts.size() <= 2);
        QTRY_VERIFY(texts.size() > 3);
        qunsetenv("NOTIFY_SOCKET");
    }

    void frozenProgramIsStartedAnew()
    {
        QByteArray output;
        QProcess simulator;
        simulator.setProcessChannelMode(QProcess::MergedChannels);
        simulator.start(ZELL_SIMULATOR, {"--watchdog", "2", "--", ZELL_PROGRAM});
        QElapsedTimer clock;
        clock.start();
        const auto starts = [&] { return (output += simulator.readAll()).count("is ready"); };
        QTRY_COMPARE_WITH_TIMEOUT(starts(), 1, 20000);
        const qint64 start = clock.restart();

        const QByteArray self = QByteArray::number(simulator.processId());
        const QByteArray child =
            Environment::contentOf("/proc/" + self + "/task/" + self + "/children");
        QCOMPARE(::kill(child.trimmed().toInt(), SIGSTOP), 0);
        QTRY_COMPARE_WITH_TIMEOUT(starts(), 2, 20000);
        // Twice a start, as the machine may be busier now.
        QVERIFY2(clock.elapsed() < 2000 + 2 * start, qPrintable(QString::number(clock.elapsed())));
        QCOMPARE(output.count("no beat"), 1);
        simulator.terminate();
        QVERIFY(simulator.waitForFinished());
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
             {"mute name server", SIGTERM,
              "OptionPage.jump_updateFirmware_page,updateFirmware.download_newVersion",
              "the name server is asked", nullptr, "http://mute.example/"},
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
        qputenv("ZELL_FIRMWARE_URL", row.url.isEmpty() ? server.url().toLatin1() : row.url);
        qputenv("LD_PRELOAD", row.url.isEmpty() ? "" : ZELL_FAULTS);
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
