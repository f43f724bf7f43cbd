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

    struct Way
    {
        const char *name, *tile; ///< the class of the page, and what opens it
        QStringList behind; ///< taps that lead to a page behind it, and back where that is left
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

    void everyVisitIsFresh_data()
    {
        addRows<Way>({
            {"SetWifiPage", "option_setWifi", {}},
            {"adjustLight", "option_adjustLight", {}},
            {"nightModePage", "option_frame_nightPattern", {"button_startTime", "button_back"}},
            {"connectApp", "option_connectApp", {"button_connectApp"}},
            {"setLocation", "option_setLocation", {"button_search"}},
            {"updateFirmware", "option_updateFirmware", {}},
            {"SetTimePage", "option_setTime", {"button_timeZone", "button_back"}},
            {"setLanguagePage", "option_frame_language", {}},
            {"Factory_Reset", "option_resetFactory", {"button_confirm", "button_cancel"}},
        });
    }

    void everyVisitIsFresh()
    {
        QFETCH(Way, row);
        for (int visit = 1; visit <= 3; ++visit) {
            tap(scrolledTo(row.tile));
            QVERIFY(!page->is_allowed_slide());
            const auto visits = page->findChildren<QWidget *>(row.name);
            QCOMPARE(visits.size(), visit);
            QVERIFY(visits.last()->isAncestorOf(page->childAt(400, 300)));
            for (const QString &name : row.behind)
                tap(visibleChild(visits.last(), name));
            tap(visibleChild(page, "button_back"));
            QVERIFY(page->is_allowed_slide());
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
        QSignalSpy left(page, &OptionPage::signal_back_lastPage);
        MessageLog log;
        tap(scrolledTo("option_frame_tempture")->findChild<QWidget *>("checkBox_tempture"));
        QCOMPARE(log.lines(), QStringList{"tempture is ℉..."});
        tap(visibleChild(page, "button_back"));
        QCOMPARE(left.size(), 1);
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
    OptionFrame *scrolledTo(const char *name) const
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
