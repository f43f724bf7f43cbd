#include "connectivity/SetWifiPage.h"
#include "device/Backlight.h"
#include "mainscreen/PmAnimation.h"
#include "shell/ScreenOff.h"
#include "testkit/CallSlot.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"
#include "tests/mainscreen/ShownMainScreen.h"

#include <QLabel>
#include <QPropertyAnimation>
#include <QSignalSpy>
#include <QTimer>

namespace {
constexpr QPoint pmNumber(330, 240);

struct Way
{
    const char *name;
    QList<int> swipes;
    QString tile;
    int position;
    int backgroundX;
    QString hiddenTile;
};

struct Slide
{
    const char *name;
    QString button, page;
};

struct Moment
{
    const char *name;
    int time;
    int strip;
};

struct Reading
{
    const char *name;
    int reading;
    QString text;
    int width;
};
} // namespace

class TestMainScreen : public ShownMainScreen
{
    Q_OBJECT

private slots:
    void init()
    {
        paintings = 0;
        window = std::make_unique<MainWindow>();
        window->setGeometry(0, 0, 854, 480);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        view = window->findChild<MainView *>();
        timeLine = view->findChild<QTimeLine *>();
        // Readings come from the tests alone.
        for (GetData *object : GetData::objects())
            object->findChild<QTimer *>("refreshTimer")->stop();
    }

    void swipesAndTileTaps_data()
    {
        // The tiles count from 1, the strip from 0: this is where they lead on this device.
        const QString pm = "frame_pm";
        const QString temperature = "frame_temperature";
        const QString humidity = "frame_humidity";
        addRows<Way>({{"a press that does not move", {0}, "", -1, -199, temperature},
                      {"a pixel to the left", {-1}, "", -2, -370, humidity},
                      {"far to the right", {120}, "", 0, -29, pm},
                      {"on humidity nothing follows", {-9, -9, 9}, "", -1, -199, temperature},
                      {"on PM2.5 nothing precedes", {9, 9, -9}, "", -1, -199, temperature},
                      {"PM2.5 tile on temperature", {}, pm, -1, -199, temperature},
                      {"PM2.5 tile on humidity", {-9}, pm, -1, -199, humidity},
                      {"temperature tile on PM2.5", {9}, temperature, -2, -370, pm},
                      {"temperature tile on humidity", {-9}, temperature, -2, -370, humidity},
                      {"humidity tile on temperature", {}, humidity, -3, -541, temperature},
                      {"humidity tile on PM2.5", {9}, humidity, -3, -541, pm}});
    }

    void swipesAndTileTaps()
    {
        QFETCH(Way, row);
        std::ranges::for_each(row.swipes, [this](int distance) { swipe(distance); });
        if (!row.tile.isEmpty())
            tap(row.tile);
        endSlide();
        QCOMPARE(position(), row.position);
        // The background lies below everything else.
        QCOMPARE(int(view->scene()->items(Qt::AscendingOrder).first()->x()), row.backgroundX);
        QVERIFY(!embedded(row.hiddenTile)->isVisible());
        const QImage picture = window->grab().toImage();
        for (const int page : {0, 1, 2})
            QCOMPARE(picture.pixelColor(313 + 18 * page, 470) == Look::accent,
                     page == -row.position);
        if (row.position != -3)
            return;
        QCOMPARE(picture.pixelColor(850, 479), QColor(0x07, 0x0b, 0x0e));
        // There is no page to swipe on.
        swipe(-9);
        QCOMPARE(position(), -3);
        swipe(9);
        QCOMPARE(position(), -2);
    }

    void overlayKeepsAndShowsItsOwnPresses()
    {
        const QImage before = window->grab().toImage();
        // The tile of PM2.5 leads nowhere from here.
        for (const QString name : {"frame_pm", "frame_humidity", "button_option", "button_wifi",
                                   "button_power", "button_historyLogo", "button_history"}) {
            const QPoint place = centre(name);
            pressAt(window.get(), place);
            QCOMPARE(window->grab().toImage() != before, name != "frame_pm");
            releaseAt(window.get(), place - QPoint(110, 0));
            QCOMPARE(window->grab().toImage(), before);
        }
        for (const QPoint still : {pmNumber, freeGround, centre("label_logo")}) {
            pressAt(window.get(), still);
            QCOMPARE(window->grab().toImage(), before);
            releaseAt(window.get(), still);
        }
        QCOMPARE(timeLine->state(), QTimeLine::NotRunning);
        // Between the tiles lies the page; its press leaves nothing behind that catches the next.
        drag(window.get(), {647, 240}, {600, 240});
        endSlide();
        QCOMPARE(position(), -2);
    }

    void readingsReachTilesAndPages_data()
    {
        // The first page is that of PM2.5; its row is as wide as what it shows.
        addRows<Reading>({{"below zero", -5, "-5", 329},
                          {"four places", 1023, "1023", 433},
                          {"not credible", 10000, "10000", 329},
                          {"the smallest int", INT_MIN, "-2147483648", 329},
                          {"missing", 9999, "", 225}});
    }

    void readingsReachTilesAndPages()
    {
        QFETCH(Reading, row);
        swipe(9);
        for (const int reading : {8, row.reading}) {
            report(reading);
            QTRY_COMPARE(window->grab().toImage(), drawnAnew());
        }
        for (const char *name : {"label_pValue", "label_tValue", "label_hValue"}) {
            const auto *label = qobject_cast<QLabel *>(embedded(name));
            QCOMPARE(label->text(), row.text);
            QCOMPARE(label->pixmap(Qt::ReturnByValue).isNull(), row.reading != 9999);
            // Five places and more are no reading of a room.
            if (row.text.size() < 5)
                QVERIFY(label->sizeHint().width() <= 114);
        }
        QCOMPARE(embedded("frame_value")->width(), row.width);
        // What 9999 takes away does not come back.
        report(5);
        for (const char *name :
             {"label_pTips", "label_tTips", "label_hTips", "label_3", "label_hUnit"})
            QCOMPARE(!embedded(name)->isHidden(), row.reading != 9999);
    }

    void aScanRunsInPlaceOfTheNumberWhileItIsInSight()
    {
        swipe(9);
        const MessageLog log;
        auto *scan = embedded("PmAnimation");
        const auto *granule = scan->findChild<QPropertyAnimation *>();
        // The second tap meets the sensor's picture.
        for (const QPoint place : {pmNumber, pmNumber - QPoint(60, 0)}) {
            tapAt(window.get(), place);
            QCOMPARE(embedded("frame_center")->isVisible(), !scan->isVisible());
        }
        QCOMPARE(log.count("启动PM2.5检测"), 2);
        PmAnimation other;
        other.init();
        other.startAnimation();
        for (const char *cover : {"button_history", "button_historyLogo", "button_option"}) {
            tap(cover);
            QTRY_COMPARE(granule->state(), QAbstractAnimation::Paused);
            // Another one goes on meanwhile.
            const QSignalSpy turns(granule, &QVariantAnimation::valueChanged);
            const QSignalSpy otherTurns(other.findChild<QPropertyAnimation *>(),
                                        &QVariantAnimation::valueChanged);
            QTRY_VERIFY(otherTurns.count() > 9);
            QCOMPARE(turns.count(), 0);
            // A finger on what covers the page does not reach it.
            drag(window.get(), {400, 300}, {300, 300});
            QCOMPARE(timeLine->state(), QTimeLine::NotRunning);
            tapAt(window.get(), {47, 40});
            QCOMPARE(granule->state(), QAbstractAnimation::Running);
        }
        swipe(-9);
        QCOMPARE(granule->state(), QAbstractAnimation::Paused);
        callSlot(scan->parentWidget(), "update_pmData", Q_ARG(int, 35));
        QVERIFY(!scan->isVisible());
        QVERIFY(embedded("frame_center")->isVisible());
    }

    void aScanIsPaintedAsTheSceneWouldDoIt_data()
    {
        // The bar turns after 5 s, with another picture, and all begins anew after 15 s.
        addRows<Moment>({{"on its way", 2000, 0},
                         {"as the bar turns", 4870, 0},
                         {"as it begins anew", 14870, 0},
                         {"as the page slides", 2000, -300}});
    }

    void aScanIsPaintedAsTheSceneWouldDoIt()
    {
        QFETCH(Moment, row);
        swipe(9);
        tapAt(window.get(), pmNumber);
        const auto *scan = embedded("PmAnimation");
        scan->findChild<QLabel *>("label_scanning")->installEventFilter(this);
        auto *whole = scan->findChild<QAbstractAnimation *>({}, Qt::FindDirectChildrenOnly);
        for (int frame = 0; frame < 9; ++frame) {
            paintings = 0;
            whole->setCurrentTime(row.time + 16 * frame);
            whole->pause();
            QCoreApplication::processEvents();
        }
        // It is no longer the scene that paints, until something else is painted.
        QCOMPARE(paintings, 0);
        const QImage straight = onScreen();
        if (row.strip != 0)
            callSlot(view, "change_page", Q_ARG(int, row.strip));
        view->viewport()->repaint();
        const QImage byTheScene = onScreen();
        QCOMPARE(byTheScene, window->grab().toImage());
        QCOMPARE(straight == byTheScene, row.strip == 0);
    }

    void aPageSlidesInAsItsPicture_data()
    {
        addRows<Slide>({{"settings", "button_option", "page_option"},
                        {"history", "button_history", "page_history"}});
    }

    void aPageSlidesInAsItsPicture()
    {
        QFETCH(Slide, row);
        auto *page = window->findChild<QWidget *>(row.page);
        page = page ? page : embedded(row.page);
        page->findChild<QWidget *>("frame_top")->installEventFilter(this);
        tap(row.button);
        QTRY_VERIFY(page->x() < 854);
        QCOMPARE(paintings, 1);
        const QRect seen(0, 0, 854 - page->x(), 480);
        const QImage onItsWay = window->grab(seen.translated(page->x(), 0)).toImage();
        // A finger sees the page itself, and what it does there.
        QVERIFY(!page->updatesEnabled());
        pressAt(window.get(), freeGround);
        QVERIFY(page->updatesEnabled());
        releaseAt(window.get(), freeGround);
        QTRY_COMPARE(page->x(), 0);
        QCOMPARE(window->grab(seen).toImage(), onItsWay);
    }

    void wifiButtonOpensItsPageOnce()
    {
        const QPoint place = centre("button_wifi");
        const QImage dark = onScreen();
        // Within the press, as the search for networks may hold up the screen.
        QMouseEvent press(QEvent::MouseButtonPress, place, view->viewport()->mapToGlobal(place),
                          Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(view->viewport(), &press);
        QVERIFY(onScreen() != dark);
        cancelAt(window.get(), place);
        tapAt(window.get(), place);
        tapAt(window.get(), place);
        QTRY_VERIFY(!view->isVisible());
        QCOMPARE(window->findChildren<SetWifiPage *>().size(), 1);
        // Behind it lies the menu.
        for (const bool isBack : {false, true}) {
            tapAt(window.get(), {47, 40});
            QCOMPARE(view->isVisible(), isBack);
        }
    }

    void powerButtonDarkensAndTheNextTouchOnlyWakes()
    {
        const QString log = Environment::device().backlightLog();
        const QPoint option = centre("button_option");
        const QImage before = window->grab().toImage();
        // In haste: the second tap wakes nothing.
        doubleTapAt(window.get(), centre("button_power"));
        QCOMPARE(window->grab().toImage().pixelColor(option), QColor(Qt::black));
        for (const int asked : {200, 90})
            Backlight::ofDevice().setLevel(asked);
        QCOMPARE(Environment::contentOf(log), "7\n");
        // Nor does the second half of a double tap reach what lies below.
        for (int taps = 2; taps > 0; --taps) {
            pressAt(window.get(), option, 400);
            QCOMPARE(Environment::contentOf(log), "7\n90\n");
            QCOMPARE(window->grab().toImage(), before);
            releaseAt(window.get(), option);
        }
        const auto *settings = window->findChild<QWidget *>("page_option");
        auto *cover = window->findChild<ScreenOff *>();
        QVERIFY(!settings->isVisible());
        QTRY_VERIFY(!cover->isVisible());
        tapAt(window.get(), option);
        QVERIFY(settings->isVisible());
        // A window that goes leaves no dark display.
        callSlot(cover, "darken");
        window.reset();
        QCOMPARE(Environment::contentOf(log), "7\n90\n7\n90\n");
    }

    void aPageFadesAtTheSideBar()
    {
        // Above the background, the dots and the pages before it.
        QGraphicsItem *page = view->scene()->items(Qt::AscendingOrder)[4];
        const QMap<int, double> opacities{
            {-3000, 0}, {-2999, 1}, {-1930, 1}, {-1790, 0.5}, {-1648, 0}};
        for (const auto &[frame, opacity] : opacities.asKeyValueRange()) {
            // What changes unseen is drawn once it is seen.
            report(frame / -100);
            callSlot(view, "change_page", Q_ARG(int, frame));
            QCOMPARE(page->opacity(), opacity);
            QTRY_COMPARE(window->grab().toImage(), drawnAnew());
        }
        // Half way into the fading it ends at the tiles.
        callSlot(view, "change_page", Q_ARG(int, -1790));
        const QImage with = window->grab().toImage();
        page->hide();
        const QImage without = window->grab().toImage();
        QVERIFY(with != without);
        const QRect tiles(590, 0, 264, 480);
        QCOMPARE(with.copy(tiles), without.copy(tiles));
    }

    void aSlideTakesNothingElseAndChangesNoPicture()
    {
        QCOMPARE(std::pair(timeLine->startFrame(), timeLine->endFrame()), std::pair(0, 100));
        const QImage before = window->grab().toImage();
        // Applied anew, the style sheet must not put anything behind the transparent pages.
        qApp->setStyleSheet(qApp->styleSheet() + QStringLiteral("QDial {color: red}"));
        for (const int distance : {-9, 9, 9, -9})
            swipe(distance);
        QCOMPARE(window->grab().toImage(), before);
        drag(window.get(), freeGround, freeGround - QPoint(80, 0));
        QTRY_VERIFY(position() < -1);
        // While it slides nothing else is taken.
        for (const int distance : {-80, 80})
            drag(window.get(), freeGround, freeGround + QPoint(distance, 0));
        tap("frame_pm");
        QTRY_COMPARE(timeLine->state(), QTimeLine::NotRunning);
        QCOMPARE(position(), -2);
        QVERIFY(!embedded("frame_humidity")->isVisible());
        QCOMPARE(timeLine->duration(), 500);
    }
};

ZELL_TEST_MAIN(TestMainScreen)
#include "test_main_screen.moc"
