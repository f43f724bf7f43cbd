#include "device/Backlight.h"
#include "pages/Language.h"
#include "settings/Restart.h"
#include "settings/adjustLight.h"
#include "settings/setLanguagePage.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"
#include "testkit/Touch.h"

#include <QDeadlineTimer>
#include <QRegularExpression>
#include <QSlider>
#include <QTimer>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace std::chrono_literals;

/// The pages that change something on the device: brightness and language.
class TestDevicePages : public QObject
{
    Q_OBJECT

    struct Reading
    {
        const char *name;
        QByteArray text, levels;
        int shown;
    };
    struct Choice
    {
        const char *name, *written;
        int row;
    };
    struct Script
    {
        const char *name, *commands, *told;
    };
    struct Stored
    {
        const char *name;
        QByteArray content;
        QString translationFile;
    };

private slots:
    // The product needs no program of the machine but a shell.
    void initTestCase() { qputenv("PATH", "/nowhere"); }

    void init()
    {
        QFile::remove(device.lightFile());
        QVERIFY(simulator::replaceFile(device.backlightLog(), {}));
        page = std::make_unique<adjustLight>();
        page->show();
        slider = page->findChild<QSlider *>("slider_light");
        QFile::remove(device.restartRequest());
        QFile::remove("language.txt");
        languages = std::make_unique<setLanguagePage>();
        languages->show();
    }

    void sensorSetsTheLevel_data()
    {
        addRows<Reading>({{"the slider's level", "132", "", 132},
                          {"highest level", "256\n", "256\n", 256},
                          {"beyond the upper end", "300", "255\n257\n", 255},
                          {"beyond the lower end", "0", "10\n7\n", 10},
                          {"lowest level", "8", "8\n", 8},
                          {"empty", "", "", 132},
                          {"no number", "12x", "", 132},
                          {"endless number", QByteArray(100000, '1'), "", 132}});
    }

    void sensorSetsTheLevel()
    {
        QFETCH(Reading, row);
        setLight(row.text);
        page->cause_lightUpdate();
        QCOMPARE(levels(), row.levels);
        QCOMPARE(slider->value(), row.shown);
    }

    void sensorIsPolledEverySecond()
    {
        auto *timer = page->findChild<QTimer *>();
        QVERIFY(timer->isActive());
        QCOMPARE(timer->interval(), 1000);
        timer->setInterval(1);
        MessageLog log;
        QTRY_COMPARE(log.count("light sensor"), 1);
        setLight("77");
        QTRY_COMPARE(levels(), "77\n");
        QCOMPARE(log.count("light sensor"), 1);
    }

    void fingerMovesTheSliderOnceAutomaticIsOff()
    {
        const QPoint handle = slider->mapTo(page.get(), slider->rect().center());
        drag(page.get(), handle, handle + QPoint(100, 0));
        QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(99, 36)); // as if nothing lay upon it
        QCOMPARE(slider->value(), 132);
        tap(page->findChild<QWidget *>("checkBox_adjustLight"));
        QTest::mousePress(slider, Qt::RightButton, {}, QPoint(99, 36));
        QCOMPARE(slider->value(), 132);
        // From beside the handle: it jumps there and is dragged on. 250 levels lie on 544 px.
        pressAt(page.get(), handle - QPoint(136, 0));
        QCOMPARE(slider->value(), 69);
        moveTo(page.get(), handle + QPoint(400, 0));
        releaseAt(page.get(), handle + QPoint(400, 0));
        QCOMPARE(groove(), (QStringList{"Front", "Background2"}));
        QVERIFY(slider->styleSheet().contains("border: -36px solid #212121;"));
        setLight("90");
        page->cause_lightUpdate();
        QCOMPARE(levels(), "69\n255\n257\n");
        slider->setValue(10); // neither end nor middle
        QCOMPARE(groove(), (QStringList{"Front", "Background2"}));
        slider->setValue(11);
        QCOMPARE(groove(), (QStringList{"Front", "Background"}));
        slider->setValue(7);
        QCOMPARE(groove(), (QStringList{"Background2", "Background"}));
    }

    void pageLeftBehindFollowsTheSensorAndRepeatsNothing()
    {
        adjustLight former;
        former.on_button_back_clicked();
        former.empty();
        QTRY_VERIFY(former.findChildren<QWidget *>().isEmpty());
        // The second of two pages repeats nothing, but follows alone as well.
        setLight("300");
        page->cause_lightUpdate();
        poll(former);
        for (const QByteArray reading : {"50", "0", "0"}) {
            setLight(reading);
            poll(former);
        }
        setLight("60");
        page->cause_lightUpdate();
        poll(former);
        // What it has not sent again it has taken in all the same: a level set by hand stays.
        Backlight::ofDevice().setLevel(200);
        poll(former);
        QCOMPARE(levels(), "255\n257\n50\n10\n7\n60\n200\n");
    }

    void pipeIsNoSensor()
    {
        QCOMPARE(mkfifo(QFile::encodeName(device.lightFile()), 0600), 0);
        page->cause_lightUpdate();
        QCOMPARE(levels(), "");
    }

    void choiceIsWrittenByteForByte_data()
    {
        addRows<Choice>({{"simplified Chinese", "ZH_SIMPLE.qm", 0},
                         {"traditional Chinese", "ZH_COMPLEX.qm", 1},
                         {"English", "US.qm", 2},
                         {"none", "", int(Language::all().size())}});
    }

    void choiceIsWrittenByteForByte()
    {
        QFETCH(Choice, row);
        choose(row.row);
        leave();
        QCOMPARE(Environment::contentOf("language.txt"), row.written);
        QVERIFY(QFile::exists(device.restartRequest()));
        QVERIFY(!languages->isVisible());
    }

    void fullDiskKeepsTheLanguageAndStopsNoRestart()
    {
        Language("US.qm").store();
        choose(0);
        rlimit room{};
        getrlimit(RLIMIT_FSIZE, &room);
        const rlimit none{0, room.rlim_max};
        signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &none);
        leave();
        setrlimit(RLIMIT_FSIZE, &room);
        QCOMPARE(Environment::contentOf("language.txt"), "US.qm");
        QVERIFY(QFile::exists(device.restartRequest()));
    }

    void lastLineOfTheFileDecides_data()
    {
        addRows<Stored>({{"no file", {}, "ZH_COMPLEX.qm"},
                         {"foreign line end", "US.qm\r\n", "US.qm"},
                         {"two lines", "US.qm\nZH_SIMPLE.qm", "ZH_SIMPLE.qm"},
                         {"empty last line", "US.qm\n\n", "ZH_COMPLEX.qm"},
                         {"ten megabytes", QByteArray(10 << 20, 'x'), QString(65536, 'x')}});
    }

    void lastLineOfTheFileDecides()
    {
        QFETCH(Stored, row);
        if (!row.content.isNull())
            QVERIFY(simulator::replaceFile("language.txt", row.content));
        QCOMPARE(Language::stored().resource(), ":/resource/translation/" + row.translationFile);
    }

    void pipeIsNoLanguageFile()
    {
        QCOMPARE(mkfifo("language.txt", 0600), 0);
        QCOMPARE(Language::stored().translationFile(), "");
        Language("US.qm").store();
        QCOMPARE(Environment::contentOf("language.txt"), "US.qm");
    }

    // The last tests: they leave scripts of their own.
    void hangingToolIsLeftAlone()
    {
        MessageLog log;
        Environment::writeDeviceScript("/bin/qtapp/baklight", "trap '' TERM; /bin/sleep 30");
        const QDeadlineTimer patience(900);
        for (int level = 20; level <= 60; ++level)
            Backlight::ofDevice().setLevel(level);
        QVERIFY2(!patience.hasExpired(), "the screen was held up");
        QCOMPARE(log.lines().size(), 1);
        // The last level goes out; what the command says of itself changes nothing.
        Environment::writeDeviceScript("/bin/qtapp/baklight", "echo $1 >> levels; exit 1");
        QTRY_COMPARE(Environment::contentOf("levels"), "60\n");
    }

    void failingScriptLeavesTheScreenAsItWas_data()
    {
        addRows<Script>(
            {{"fails", "exit 1", "command failed"}, {"hangs", "/bin/sleep 1", "command given up"}});
    }

    void failingScriptLeavesTheScreenAsItWas()
    {
        QFETCH(Script, row);
        Environment::writeDeviceScript("/bin/restartZellQt.sh", row.commands);
        MessageLog log;
        // Restarts from within an event loop, which the closing of the last window would end.
        QTimer::singleShot(0, languages.get(), [] {
            restartProgram(200ms);
            QTimer::singleShot(0, [] { QTimer::singleShot(0, [] { qApp->exit(1); }); });
        });
        QCOMPARE(QCoreApplication::exec(), 1);
        QVERIFY(languages->isVisible());
        QCOMPARE(log.count(row.told), 1);
    }

private:
    QByteArray levels() const { return Environment::contentOf(device.backlightLog()); }
    // The pictures of the groove, left and right of the handle.
    QStringList groove() const
    {
        static const QRegularExpression sheet(
            "sub-page.*/slider(\\w+)\\.png.*add-page.*/slider(\\w+)\\.png");
        return sheet.match(slider->styleSheet()).capturedTexts().mid(1);
    }
    void setLight(const QByteArray &text) const
    {
        simulator::replaceFile(device.lightFile(), text);
    }
    // What the timer of the page does, also when the page has been emptied.
    static void poll(adjustLight &of) { of.findChild<BacklightControl *>()->followSensor(); }

    void choose(int row) { tapAt(languages.get(), {427, 160 + 80 * row + 40}); }
    void leave() { tap(languages->findChild<QWidget *>("button_back")); }

    const simulator::DeviceRoot device = Environment::device();
    std::unique_ptr<adjustLight> page;
    QSlider *slider = nullptr;
    std::unique_ptr<setLanguagePage> languages;
};

ZELL_TEST_MAIN(TestDevicePages)
#include "test_device_pages.moc"
