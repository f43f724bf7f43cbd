#include "pages/Page.h"
#include "simulator/FirmwareServer.h"
#include "store/ZellDatabase.h"
#include "testkit/CallSlot.h"
#include "testkit/Environment.h"
#include "testkit/TableRows.h"
#include "testkit/Touch.h"
#include "walk/Stops.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTimer>
#include <cstdio>

/// A child with the device in its hands: taps, drags, holds and double taps anywhere, then every
/// slot of every page left behind. Nothing crashes or warns, and the window still reacts.
///
/// ZELL_TOUCHES is the number of touches, ZELL_TOUCH_SEED the start of their random numbers:
/// `ZELL_TOUCHES=25000 ./dev test test_random_touches` runs for half an hour.
class TestRandomTouches : public QObject
{
    Q_OBJECT

    struct Touch
    {
        const char *name;
        std::vector<Step> way;
        QPoint place, moved;
    };

private slots:
    void initTestCase()
    {
        zelldatabase = &database;
        Environment::writeDeviceScript("/bin/restartZellQt.sh", "true");
        QVERIFY(server.listen());
        qputenv("ZELL_FIRMWARE_URL", server.url().toLatin1());
        // Whoever waits for a page to react touches it again meanwhile.
        impatience.setInterval(100);
        impatience.setSingleShot(true);
        connect(&impatience, &QTimer::timeout, this, &TestRandomTouches::touch);
    }

    void init()
    {
        walk = std::make_unique<Walk>();
        toMenu();
    }

    void aCancelledTouchDoesNothing_data()
    {
        const Step back = tapping("button_back");
        const Step openWifi = opening("option_setWifi");
        addRows<Touch>(
            {{"button of the main screen", {back}, {782, 90}, {}},
             {"tile of the main screen", {back}, {647, 305}, {}},
             {"swipe", {back}, {300, 60}, {-80, 0}},
             {"chart", {back, tapping("button_history")}, {400, 300}, {}},
             {"tile of the menu", {}, {620, 256}, {}},
             {"drag of the menu", {}, {427, 400}, {0, -60}},
             {"switch", {opening("option_adjustLight")}, {707, 316}, {}},
             {"language", {opening("option_frame_language")}, {427, 200}, {}},
             {"network", {openWifi}, {427, 120}, {}},
             {"key", {openWifi, tappingAt({427, 120}), seeing("button_enter")}, {427, 200}, {}}});
    }

    void aCancelledTouchDoesNothing()
    {
        QFETCH(Touch, row);
        walk->settle();
        for (const Step &step : row.way) {
            step(*walk);
            walk->settle();
        }
        QImage before = walk->picture();
        pressAt(walk->screen(), row.place);
        moveTo(walk->screen(), row.place + row.moved);
        walk->settle();
        // A list stays where it has been dragged to.
        if (!row.moved.isNull())
            before = walk->picture();
        cancelAt(walk->screen(), row.place + row.moved);
        walk->settle();
        QCOMPARE(walk->picture(), before);
    }

    void windowBearsAnyTouch()
    {
        QTest::failOnWarning(QRegularExpression("."));
        while (touches < qEnvironmentVariable("ZELL_TOUCHES", "300").toInt()) {
            touch();
            QTest::qWait(1 << random.bounded(7));
            walk->screen()->show(); // the restart script does nothing
        }
        impatience.stop();

        const auto left = walk->screen()->findChildren<Page *>();
        for (Page *page : left)
            callSlots(page);
        // Past the lines that a test may log, and past -silent.
        std::printf("%d touches, %d pages\n", touches, int(left.size()));
        QVERIFY(!left.isEmpty());

        walk->screen()->show();
        walk->tapAt({1, 1}); // wakes a dark screen
        toMenu();
        walk->settle();
        walk->openTile("option_setTime");
        QVERIFY(walk->sees("button_dateTime"));
    }

private:
    // Also the way out of pages that have none.
    void toMenu()
    {
        callSlot(walk->screen(), "jump_toOption");
        callSlot(walk->screen()->findChild<QWidget *>("OptionPage"), "back_default_page");
    }

    void touch()
    {
        impatience.start();
        if (std::exchange(isDown, true))
            return;
        ++touches;
        const int kind = random.bounded(100);
        const QPoint from = place();
        if (kind == 0) {
            // The way to pages that no finger reaches yet.
            for (Page *page : walk->screen()->findChildren<Page *>()) {
                if (page->isVisible())
                    callSlots(page, "jump_");
            }
        } else if (kind == 1) {
            toMenu();
        } else if (kind < 5) {
            doubleTapAt(walk->screen(), from);
        } else if (kind < 20) {
            drag(walk->screen(), from, place());
        } else {
            pressAt(walk->screen(), from);
            if (kind == 20)
                QTest::qWait(1100);
            isDown = false;
            (kind > 90 ? cancelAt : releaseAt)(walk->screen(), from);
        }
        isDown = false;
    }

    // Every other one is meant for something.
    QPoint place()
    {
        QList<QPoint> places{{random.bounded(854), random.bounded(480)}};
        for (const auto *part : walk->screen()->findChildren<QWidget *>()) {
            const QPoint centre = part->mapTo(walk->screen(), part->rect().center());
            if (part->isVisible() && walk->screen()->rect().contains(centre) &&
                (part->inherits("QAbstractButton") || part->inherits("OptionFrame")))
                places.append(centre);
        }
        return random.bounded(2) == 0 ? places.first() : places[random.bounded(int(places.size()))];
    }

    ZellDatabase database;
    simulator::FirmwareServer server{{{.head = "HTTP/1.1 200 OK\r\n\r\n", .bodySize = 2000},
                                      simulator::statusAnswer("404 Not Found")}};
    std::unique_ptr<Walk> walk;
    QRandomGenerator random{quint32(qEnvironmentVariable("ZELL_TOUCH_SEED", "1").toUInt())};
    QTimer impatience;
    int touches = 0;
    bool isDown = false;
};

ZELL_TEST_MAIN(TestRandomTouches)
#include "test_random_touches.moc"
