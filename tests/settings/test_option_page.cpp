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
        const char *name; ///< the class of the page
        const char *tile;
        /// Taps that lead behind the page, and back to it or out of it as well.
        QStringList behind;
    };

private slots:
    void initTestCase()
    {
        qputenv("ZELL_FIRMWARE_URL", "http://127.0.0.1:1/refused.pkg");
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
            {"nightModePage",
             "option_frame_nightPattern",
             {"button_startTime", "button_back", "button_finishTime", "button_back"}},
            {"connectApp", "option_connectApp", {"button_connectApp"}},
            {"setLocation",
             "option_setLocation",
             {"button_search", "button_enter", "button_back", "button_enter", "button_back"}},
            {"updateFirmware", "option_updateFirmware", {"button_checkUpdate", "button_update"}},
            {"SetTimePage",
             "option_setTime",
             {"button_dateTime", "button_back", "button_timeZone", "button_back"}},
            {"setLanguagePage", "option_frame_language", {}},
            {"Factory_Reset", "option_resetFactory", {"button_confirm", "button_cancel"}},
        });
    }

    void everyVisitIsFresh()
    {
        QFETCH(Way, row);
        auto *tile = page->findChild<QWidget *>(row.tile);
        for (int visit = 1; visit <= 3; ++visit) {
            scrollBar->setValue(tile->y());
            tap(tile);
            QVERIFY(!page->is_allowed_slide());
            const auto visits = page->findChildren<QWidget *>(row.name);
            QCOMPARE(visits.size(), visit);
            QVERIFY(visits.last()->isAncestorOf(page->childAt(400, 300)));
            for (const QString &name : row.behind) {
                QTRY_VERIFY2(visibleChild(visits.last(), name), qPrintable(name));
                tap(visibleChild(visits.last(), name));
            }
            QTRY_VERIFY(visibleChild(page, "button_back"));
            if (!page->is_allowed_slide())
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

    void confirmationOfTheResetStays()
    {
        page->jump_resetFactory_page();
        tapAt(page, {427, 388});
        MessageLog log;
        tapAt(page, {567, 318});
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

    void unitSwitchMovesTheColourOnly()
    {
        scrollBar->setValue(scrollBar->maximum());
        MessageLog log;
        tap(page->findChild<QWidget *>("checkBox_tempture"));
        QCOMPARE(log.lines(), QStringList{"tempture is ℉..."});
        QCOMPARE(page->findChild<QWidget *>("label_F")->styleSheet(),
                 "QLabel{font-size:24px;color:#00E5FF;}");
        QCOMPARE(page->findChild<QWidget *>("label_C")->styleSheet(),
                 "QLabel{font-size:24px;color:#FFFFFF;}");
    }

    void backLeavesTheSettings()
    {
        QSignalSpy left(page, &OptionPage::signal_back_lastPage);
        tap(visibleChild(page, "button_back"));
        QCOMPARE(left.size(), 1);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            sinceLastPaint.start();
        return false;
    }

private:
    std::unique_ptr<QWidget> window;
    OptionPage *page = nullptr;
    QScrollBar *scrollBar = nullptr;
    QElapsedTimer sinceLastPaint;
};

ZELL_TEST_MAIN(TestOptionPage)
#include "test_option_page.moc"
