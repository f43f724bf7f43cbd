#include "pages/Page.h"
#include "settings/OptionFrame.h"
#include "settings/OptionPage.h"
#include "testkit/CallSlot.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"
#include "testkit/Touch.h"

#include <QElapsedTimer>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>

class TestOptionPage : public QObject
{
    Q_OBJECT

    struct Tap
    {
        const char *name;
        QPoint moved;
        int taps;
    };

private slots:
    void initTestCase()
    {
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

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            sinceLastPaint.start();
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
};

ZELL_TEST_MAIN(TestOptionPage)
#include "test_option_page.moc"
