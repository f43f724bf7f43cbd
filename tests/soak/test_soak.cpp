#include "acquisition/GetData.h"
#include "pages/Page.h"
#include "simulator/FirmwareServer.h"
#include "store/ZellDatabase.h"
#include "testkit/CallSlot.h"
#include "testkit/Environment.h"
#include "testkit/FixedClock.h"
#include "testkit/LiveFigures.h"
#include "testkit/PseudoTerminal.h"
#include "walk/Walk.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLabel>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTimer>
#include <cstdio>

using namespace std::chrono_literals;

/// Days in the life of the device, with somebody who uses all of it every few hours: nothing grows,
/// old rows go, the screen shows the reading, and the event loop turns.
///
/// The calendar is set on by hand, and with each step every scheduler ticks once. As a test it
/// lives an hour of every third day; ZELL_SOAK_DAYS (`./dev soak DAYS`) gives it whole days.
class TestSoak : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        LiveFigures::listen();
        stopCalendarAt(now);
        zelldatabase = &database;
        QVERIFY(server.listen());
        qputenv("ZELL_FIRMWARE_URL", server.url().toLatin1());
        walk = std::make_unique<Walk>();
        store = QSqlDatabase::addDatabase("QSQLITE", "soak");
        store.setDatabaseName("ZellQt4.db");
        store.setConnectOptions("QSQLITE_OPEN_READONLY");
        QVERIFY(store.open());
        connect(&beat, &QTimer::timeout, this, &TestSoak::noteTurn);
        beat.start(0);
        // Rows build schedulers up to the ceiling: the device has run for half an hour.
        while (GetData::objects().size() < GETDATA_MAX_OBJECTS)
            tick();
    }

    void nothingGrowsNothingStops()
    {
        LiveFigures level;
        const int days = isWhole ? wholeDays : 4;
        for (int day = 1; day <= days; ++day) {
            for (int hour = 0; hour < (isWhole ? 24 : 1); ++hour) {
                liveAnHour();
                if (hour % 3 == 0)
                    useTheDevice();
            }
            now += isWhole ? 0 : 71 * 3600;
            const LiveFigures figures = LiveFigures::now();
            // Past the lines that a test may log, and past -silent.
            std::printf("day %d: %s, %d rows; longest standstill %.1f ms (%s)\n", day,
                        qPrintable(figures.text()), rowsWithinRetention(),
                        double(longest.count()) / 1e6, longestIn);
            std::fflush(stdout);
            if (day <= 2)
                level = figures;
            QVERIFY2(!figures.isAbove(level), qPrintable(level.text()));
            QVERIFY(rowsWithinRetention() > 0);
            // An emptied page stays as a frame, with all that its visit leaves 4.5 KiB; a whole one
            // takes many times as much. 1 MiB is for the holes in the heap.
            const int further = figures.emptiedPages - level.emptiedPages;
            if (isWhole)
                QVERIFY(figures.residentKiB <= level.residentKiB + 1024 + further * 8);
        }
        if (isWhole)
            QVERIFY(longest <= 50ms);
    }

private:
    void liveAnHour()
    {
        const int step = isWhole ? 10 : 60;
        for (int second = 0; second < 3600; second += step) {
            stopCalendarAt(now += step);
            // Another row each time: a repeated one is not stored.
            const QString celsius = QString::number(now / step % 40);
            walk->setReadings(celsius.toInt(), 50);
            doing = "a tick";
            // A driver that was slow, as on a busy machine, is asked again after half a second.
            walk->waitFor("the reading", [&] {
                turn(tick);
                return shown() == celsius;
            });
            if (second % 900 == 0)
                sample();
        }
    }

    static void tick()
    {
        const QList<GetData *> schedulers = GetData::objects();
        for (GetData *scheduler : schedulers)
            callSlot(scheduler, "refresh_allData");
    }

    void sample()
    {
        const auto all = [](const char *slot) {
            for (GetData *scheduler : GetData::objects())
                callSlot(scheduler, slot);
        };
        doing = "a sampling window";
        turn([&] { all("start_PM25_samping_slot"); });
        QVERIFY(line.send(QByteArray(60, 'x')));
        turn([] {}, 5ms);
        turn([&] { all("stop_PM25_samping_slot"); });
        QVERIFY(!line.isOpened());
    }

    void useTheDevice()
    {
        touch("button_history");
        turn([&] { walk->swipe(200, 600); });
        touch("button_back");
        doing = "slide";
        turn([&] { walk->swipe(130, 40); }, 450ms);
        turn([&] { walk->swipe(40, 130); }, 450ms);
        touch("button_option");
        auto *menu = walk->screen()->findChild<QWidget *>("OptionPage");
        for (const char *jump :
             {"jump_setTime_page", "jump_setNightPatternSlt", "jump_adjustLight_page",
              "jump_setLanguage_page", "jump_setLocation_page", "jump_connectApp_page",
              "jump_updateFirmware_page", "jump_resetFactory_page", "jump_setWifi_page"}) {
            // The scan and the wait for a connection are meant to be waited for.
            doing = qstrcmp(jump, "jump_setWifi_page") == 0 ? nullptr : jump;
            turn([&] { callSlot(menu, jump); }, 20ms);
            for (Page *page : walk->screen()->findChildren<Page *>()) {
                if (page->isVisible())
                    turn([&] { callSlots(page, "jump_"); }, 20ms);
            }
            turn([&] { callSlot(menu, "back_default_page"); }, 20ms);
        }
        touch("button_back");
    }

    void touch(const char *name)
    {
        doing = name;
        turn([&, place = walk->placeOf(name)] { walk->tapAt(place); }, 450ms);
    }

    // Lets the event loop turn, with action in one of its turns.
    void turn(const std::function<void()> &action, std::chrono::milliseconds length = 0ms)
    {
        QEventLoop loop;
        QTimer::singleShot(0, this, action);
        QTimer::singleShot(length, &loop, &QEventLoop::quit);
        sinceTurn.start();
        loop.exec();
        noteTurn();
        sinceTurn.invalidate();
    }

    void noteTurn()
    {
        if (!sinceTurn.isValid())
            return;
        const std::chrono::nanoseconds standstill{sinceTurn.nsecsElapsed()};
        sinceTurn.start();
        if (doing && standstill > longest) {
            longest = standstill;
            longestIn = doing;
        }
    }

    static QString shown()
    {
        for (const QWidget *widget : QApplication::allWidgets()) {
            if (widget->objectName() == "label_tValue")
                return qobject_cast<const QLabel *>(widget)->text();
        }
        return {};
    }

    // How many rows there are; -1 where one is older than the midnight six days before the latest.
    int rowsWithinRetention() const
    {
        QSqlQuery rows("select min(UnixSec), max(UnixSec), count(*) from TempAndHum", store);
        rows.next();
        const auto latest = QDateTime::fromSecsSinceEpoch(rows.value(1).toLongLong());
        const auto first = latest.date().addDays(-6).startOfDay().toSecsSinceEpoch();
        return rows.value(0).toLongLong() > first ? rows.value(2).toInt() : -1;
    }

    const int wholeDays = qEnvironmentVariableIntValue("ZELL_SOAK_DAYS");
    const bool isWhole = wholeDays > 0;
    // A noon: retention counts from midnights.
    std::time_t now = 1'700'020'800;
    ZellDatabase database;
    simulator::FirmwareServer server{{{.head = "HTTP/1.1 200 OK\r\n\r\n", .bodySize = 2000}}};
    PseudoTerminal line;
    std::unique_ptr<Walk> walk;
    QSqlDatabase store;
    QTimer beat;
    QElapsedTimer sinceTurn;
    const char *doing = nullptr;
    std::chrono::nanoseconds longest{};
    const char *longestIn = "";
};

ZELL_TEST_MAIN(TestSoak)
#include "test_soak.moc"
