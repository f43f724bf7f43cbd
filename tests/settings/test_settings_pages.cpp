#include "pages/CancelledTouch.h"
#include "pages/Look.h"
#include "pages/Page.h"
#include "settings/OptionFrame.h"
#include "settings/OptionPage.h"
#include "testkit/CallSlot.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"
#include "testkit/Touch.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QPropertyAnimation>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableWidget>
#include <functional>
#include <utility>

namespace {
int differentPixels(const QImage &one, const QImage &other)
{
    int different = 0;
    for (int i = 0; i < one.width() * one.height(); ++i) {
        const QPoint at(i % one.width(), i / one.width());
        different += int(one.pixel(at) != other.pixel(at));
    }
    return different;
}
} // namespace

class TestSettingsPages : public QObject
{
    Q_OBJECT

    struct Pressed
    {
        const char *name, *page, *lit, *tapped;
        QPoint at;
    };
    // What is dragged, and what changes in it on the way.
    struct Dragged
    {
        const char *name, *area;
        std::function<void(OptionPage *)> open;
        std::function<void(QAbstractScrollArea *)> change;
    };
    struct Tap
    {
        const char *name;
        QPoint moved;
        int taps;
    };

private slots:
    void initTestCase()
    {
        new CancelledTouch(this);
        // The language page is to lead back to the menu, not to a restart.
        QVERIFY(QFile::remove(Environment::deviceRoot() + "/bin/restartZellQt.sh"));
    }

    void init()
    {
        window = std::make_unique<QWidget>();
        window->resize(854, 480);
        page = new OptionPage(window.get());
        window->show();
        scrollBar = page->findChild<QScrollArea *>("scrollArea")->verticalScrollBar();
    }

    void everyTileOpensAFreshPageAndBackLeavesIt()
    {
        for (const auto *tile : page->findChildren<OptionFrame *>()) {
            for (int visit = 1; visit <= 3; ++visit) {
                tap(scrolledTo(tile->objectName()));
                const QWidget *opened = page->childAt(400, 300);
                while (opened && !qobject_cast<const Page *>(opened))
                    opened = opened->parentWidget();
                if (tile->objectName() == "option_frame_tempture") {
                    QVERIFY(!opened);
                    break;
                }
                QVERIFY(opened);
                const auto visits = page->findChildren<Page *>(opened->objectName());
                QCOMPARE(visits.size(), visit);
                QCOMPARE(visits.last(), opened);
                QVERIFY(!page->is_allowed_slide());
                tap(visibleChild(page, "button_back"));
                QVERIFY(page->is_allowed_slide());
            }
        }
    }

    void openPagesPaintNothingByThemselves()
    {
        std::vector<std::unique_ptr<OptionPage>> menus;
        for (const QWidget *tile : page->findChildren<OptionFrame *>()) {
            menus.push_back(std::make_unique<OptionPage>());
            menus.back()->show();
            callSlot(menus.back()->findChild<QWidget *>(tile->objectName()), "clicked");
        }
        page->jump_setTime_page();
        callSlot(page->findChild<QWidget *>("SetTimePage"), "on_button_dateTime_clicked");
        sinceLastPaint.start();
        qApp->installEventFilter(this);
        QTRY_VERIFY2(sinceLastPaint.elapsed() > 1200, "a page paints at least once a second");
        qApp->removeEventFilter(this);
    }

    void whatOpensIsPaintedOnce()
    {
        qApp->installEventFilter(this);
        const QWidget *menu = page->findChild<QWidget *>("frame_Conent");
        for (const auto *tile : {"option_adjustLight", "option_setTime", "option_connectApp"}) {
            paints.clear();
            tap(scrolledTo(tile));
            const QWidget *opened = page->childAt(400, 300);
            while (!qobject_cast<const Page *>(opened))
                opened = opened->parentWidget();
            QTRY_VERIFY(paints[opened]);
            QCoreApplication::processEvents();
            QCOMPARE(paints[opened], 1);
            paints.clear();
            tap(visibleChild(page, "button_back"));
            QTRY_VERIFY(paints[menu]);
            QCoreApplication::processEvents();
            QCOMPARE(paints[menu], 1);
        }
        qApp->removeEventFilter(this);
    }

    void unitAndResetAreToldOnly()
    {
        MessageLog log;
        tap(scrolledTo("option_frame_tempture")->findChild<QWidget *>("checkBox_tempture"));
        QCOMPARE(log.lines(), QStringList{"tempture is ℉..."});
        page->jump_resetFactory_page();
        tap(visibleChild(page, "button_confirm"));
        log.clear();
        tap(visibleChild(visibleChild(page, "FactoryReset_Confirm"), "button_confirm"));
        QCOMPARE(log.lines(), QStringList{"start factory reset..."});
        QVERIFY(visibleChild(page, "FactoryReset_Confirm"));
    }

    void dragScrollsOverTilesAndGainsSpeed()
    {
        QSignalSpy taps(page->findChild<OptionFrame *>("option_setLocation"),
                        &OptionFrame::clicked);
        pressAt(page, {200, 360});
        moveTo(page, {200, 340});
        QTRY_COMPARE(scrollBar->value(), 20);
        moveTo(page, {200, 339});
        QTRY_COMPARE(scrollBar->value(), 41);
        releaseAt(page, {200, 260});
        QTRY_COMPARE(scrollBar->value(), 141);
        QCOMPARE(taps.size(), 0);
    }

    void whatIsDraggedIsSeenAsItIs_data()
    {
        const auto rewrite = [](const char *label) {
            return [label](auto *area) { area->template findChild<QLabel *>(label)->setText("-"); };
        };
        const auto openZones = [](OptionPage *menu) {
            menu->jump_setTime_page();
            callSlot(visibleChild(menu, "SetTimePage"), "on_button_timeZone_clicked");
        };
        const auto addRow = [](auto *area) {
            auto *list = static_cast<QAbstractItemView *>(area);
            list->model()->insertRows(0, 1);
            // At once, as until then a list shows nothing.
            list->doItemsLayout();
        };
        const auto mark = [](auto *area) {
            static_cast<QTableWidget *>(area)->item(0, 1)->setText("1");
        };
        addRows<Dragged>(
            {{"text in view", "scrollArea", [](auto) {}, rewrite("label_setLocation")},
             {"text out of view", "scrollArea", [](auto) {}, rewrite("label_wifiName")},
             {"networks", "listView", &OptionPage::jump_setWifi_page, addRow},
             {"zones", "tableWidget_timeZone", openZones, mark}});
    }

    void whatIsDraggedIsSeenAsItIs()
    {
        QFETCH(Dragged, row);
        QVERIFY(Environment::device().setNetworks(QStringList(20, "Network")));
        QVERIFY(QDir().mkpath("../resource"));
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        row.open(page);
        auto *area = qobject_cast<QAbstractScrollArea *>(visibleChild(page, row.area));
        const QScrollBar *bar = area->verticalScrollBar();
        QWidget *view = area->viewport();
        // But for the thumb, which may stand upon it.
        const QRect place(view->mapTo(window.get(), QPoint()),
                          view->size().shrunkBy({0, 0, 15, 0}));
        auto glides = page->findChildren<QPropertyAnimation *>();
        glides.removeIf([bar](const auto *glide) { return glide->targetObject() != bar; });
        int shown = bar->value();
        int wrong = 0;
        bool isChanged = false;
        connect(glides.first(), &QPropertyAnimation::valueChanged, this, [&] {
            if (std::exchange(shown, bar->value()) == bar->value())
                return;
            QImage wanted(place.size(), QImage::Format_RGB32);
            wanted.fill(Look::ground);
            view->render(&wanted, {}, {}, QWidget::DrawChildren);
            const QImage seen = window->screen()->grabWindow(window->winId()).toImage();
            wrong += differentPixels(seen.copy(place), wanted);
            if (bar->value() > 120 && !std::exchange(isChanged, true))
                row.change(area);
        });
        pressAt(page, {400, 300});
        moveTo(page, {400, 120});
        QTRY_VERIFY(bar->value() > 170);
        moveTo(page, {400, 460});
        QTRY_VERIFY(bar->value() < 30);
        QVERIFY(isChanged);
        QCOMPARE(wrong, 0);
        releaseAt(page, {400, 460});
        QTRY_COMPARE(glides.first()->state(), QPropertyAnimation::Stopped);
        QCOMPARE(wrong, 0);
    }

    void tapNeedsTheFingerNear_data()
    {
        addRows<Tap>({{"near on both axes", {-99, 99}, 1},
                      {"far to the left", {-100, 0}, 0},
                      {"far down, and its tile with it", {0, 100}, 0}});
    }

    void tapNeedsTheFingerNear()
    {
        QFETCH(Tap, row);
        const OptionFrame *tile = scrolledTo("option_frame_tempture");
        QSignalSpy taps(tile, &OptionFrame::clicked);
        pressAt(page, besideItsSwitch(tile));
        releaseAt(page, besideItsSwitch(tile) + row.moved);
        QCOMPARE(taps.size(), row.taps);
    }

    void holdIsNoTapButASecondTapIsOne()
    {
        const OptionFrame *tile = scrolledTo("option_frame_tempture");
        const QPoint at = besideItsSwitch(tile);
        QSignalSpy taps(tile, &OptionFrame::clicked);
        auto *holdTimer = tile->findChild<QTimer *>();
        QCOMPARE(holdTimer->interval(), 1000);
        QCOMPARE(holdTimer->timerType(), Qt::PreciseTimer);
        tapAt(page, at);
        QTRY_VERIFY(holdTimer->remainingTime() < 800);
        tapAt(page, at);
        QVERIFY(holdTimer->remainingTime() > 900);
        QCOMPARE(taps.size(), 2);
        holdTimer->setInterval(0);
        pressAt(page, at);
        QTRY_VERIFY(!holdTimer->isActive());
        releaseAt(page, at);
        QCOMPARE(taps.size(), 2);
    }

    void pressShowsAtOnceAndGoesWhereItCounts_data()
    {
        addRows<Pressed>(
            {{"tile", "back_default", "option_setTime", "option_setTime", {99, 48}},
             {"arrow", "back_default", "button_back", "button_back", {48, 40}},
             {"language", "jump_setLanguage", "qt_scrollarea_viewport", "listWidget", {99, 99}},
             {"plate", "jump_resetFactory", "button_confirm", "button_confirm", {250, 36}},
             {"value", "jump_setTime", "frame_TimeZone", "button_timeZone", {660, 44}},
             {"switch", "jump_setTime", "frame_24Hours", "checkBox_24Hours", {99, 9}},
             {"words", "jump_adjustLight", "frame_auto", "checkBox_adjustLight", {607, 66}}});
    }

    void pressShowsAtOnceAndGoesWhereItCounts()
    {
        QFETCH(Pressed, row);
        callSlot(page, QByteArray(row.page) + "_page");
        QWidget *lit = visibleChild(page, row.lit);
        QWidget *tapped = visibleChild(page, row.tapped);
        QSignalSpy taps(tapped, tapped->inherits("QListWidget") ? SIGNAL(itemSelectionChanged())
                                                                : SIGNAL(clicked()));
        const QPoint at = lit->mapTo(page, row.at);
        const auto onScreen = [this] {
            return window->screen()->grabWindow(window->winId()).toImage();
        };
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        window->repaint();
        const QImage dark = onScreen();
        const auto isLit = [&] { return differentPixels(onScreen(), dark) >= 500; };
        // Within the press, as what it leads to may hold up the screen.
        QMouseEvent press(QEvent::MouseButtonPress, row.at, lit->mapToGlobal(row.at),
                          Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(lit, &press);
        QVERIFY(isLit());
        cancelAt(page, at);
        pressAt(page, at);
        moveTo(page, at + QPoint(100, 0));
        QTRY_VERIFY(!isLit());
        releaseAt(page, at + QPoint(100, 0));
        pressAt(page, at);
        cancelAt(page, at);
        QTRY_VERIFY(!isLit());
        if (auto *frame = qobject_cast<TouchFrame *>(lit)) {
            pressAt(page, at);
            frame->change_status();
            QTRY_VERIFY(!isLit());
            releaseAt(page, at);
        }
        QCOMPARE(taps.size(), 0);
        tapAt(page, at);
        QCOMPARE(taps.size(), 1);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            sinceLastPaint.start();
            ++paints[watched];
        }
        return false;
    }

private:
    OptionFrame *scrolledTo(const QString &name) const
    {
        auto *tile = page->findChild<OptionFrame *>(name);
        scrollBar->setValue(tile->y());
        return tile;
    }
    QPoint besideItsSwitch(const QWidget *tile) const { return tile->mapTo(page, QPoint(370, 48)); }

    std::unique_ptr<QWidget> window;
    OptionPage *page = nullptr;
    QScrollBar *scrollBar = nullptr;
    QElapsedTimer sinceLastPaint;
    QHash<const QObject *, int> paints;
};

ZELL_TEST_MAIN(TestSettingsPages)
#include "test_settings_pages.moc"
