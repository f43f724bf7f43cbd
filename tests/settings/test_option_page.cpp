#include "settings/OptionPage.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/PictureCompare.h"
#include "testkit/Touch.h"

#include <QElapsedTimer>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStackedWidget>

namespace {
struct Way
{
    const char *tile, *holder, *pageClass;
    /// Taps that lead behind the page, and back to it or out of it as well.
    QString behind;
};
const Way ways[] = {
    {"option_setWifi", "page_setWifi", "SetWifiPage", ""},
    {"option_adjustLight", "page_adjustLight", "adjustLight", ""},
    {"option_frame_nightPattern", "page_nightMode", "nightModePage",
     "button_startTime button_back button_finishTime pushButton_finish button_back"},
    {"option_connectApp", "page_connectApp", "connectApp", "button_connectApp button_back"},
    {"option_setLocation", "page_setLocation", "setLocation",
     "button_search button_enter button_back button_enter button_back button_back"},
    {"option_updateFirmware", "page_updateFirmware", "updateFirmware",
     "button_checkUpdate button_update button_back"},
    {"option_setTime", "page_setTime", "SetTimePage",
     "button_dateTime button_back button_timeZone button_back"},
    {"option_frame_language", "page_setLanguage", "setLanguagePage", ""},
    {"option_resetFactory", "page_resetFactory", "Factory_Reset", "button_confirm button_cancel"},
};
} // namespace

class TestOptionPage : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        window = std::make_unique<QWidget>();
        window->resize(854, 480);
        page = new OptionPage(window.get());
        window->show();
        scrollBar = page->findChild<QScrollArea *>("scrollArea")->verticalScrollBar();
    }

    void everyVisitIsFresh()
    {
        qputenv("ZELL_FIRMWARE_URL", "http://127.0.0.1:1/refused.pkg");
        // The language page is to lead back to the menu, not to a restart.
        QVERIFY(QFile::remove(Environment::deviceRoot() + "/bin/restartZellQt.sh"));
        auto *stack = page->findChild<QStackedWidget *>("stackedWidget");
        for (const Way &way : ways) {
            for (int visit = 1; visit <= 3; ++visit) {
                auto *tile = page->findChild<QWidget *>(way.tile);
                scrollBar->setValue(tile->y());
                tap(tile);
                QCOMPARE(stack->currentWidget()->objectName(), way.holder);
                QVERIFY(!page->is_allowed_slide());
                const auto visits = page->findChildren<QWidget *>(way.pageClass);
                QCOMPARE(visits.size(), visit);
                QWidget *newest = visits.last();
                QVERIFY(newest->isAncestorOf(page->childAt(400, 300)));
                for (int round = 1; round <= 3 && newest->isVisible(); ++round) {
                    for (const QString &name : way.behind.split(' ', Qt::SkipEmptyParts)) {
                        QTRY_VERIFY2(visibleChild(newest, name), qPrintable(name));
                        tap(visibleChild(newest, name));
                    }
                }
                if (newest->isVisible())
                    tap(visibleChild(newest, "button_back"));
                QVERIFY(page->is_allowed_slide());
            }
        }
    }

    void pagesLookAsDrawn()
    {
        for (const char *slot : {"back_default_page", "jump_adjustLight_page",
                                 "jump_setLanguage_page", "jump_resetFactory_page"}) {
            QMetaObject::invokeMethod(page, slot);
            const QString problem = pictureDifference(window->grab().toImage(), ZELL_REFERENCE_DIR,
                                                      slot + QString(".png"));
            QVERIFY2(problem.isEmpty(), qPrintable(problem));
        }
    }

    void openPagesPaintNothingByThemselves()
    {
        std::vector<std::unique_ptr<OptionPage>> menus;
        for (const Way &way : ways) {
            menus.push_back(std::make_unique<OptionPage>());
            menus.back()->show();
            QMetaObject::invokeMethod(menus.back()->findChild<QWidget *>(way.tile), "clicked");
        }
        sinceLastPaint.start();
        qApp->installEventFilter(this);
        QTRY_VERIFY2(sinceLastPaint.elapsed() > 1200, "a page paints at least once a second");
        qApp->removeEventFilter(this);
    }

    void confirmationOfTheResetStays()
    {
        QMetaObject::invokeMethod(page, "jump_resetFactory_page");
        tapAt(page, {427, 388});
        MessageLog log;
        tapAt(page, {567, 318});
        QCOMPARE(log.lines(), QStringList{"start factory reset..."});
        QVERIFY(visibleChild(page, "FactoryReset_Confirm"));
        tapAt(page, {287, 318});
        QVERIFY(!visibleChild(page, "FactoryReset_Confirm"));
    }

    void dragScrollsOverTilesAndGainsSpeed()
    {
        QSignalSpy taps(page->findChild<QWidget *>("option_setLocation"), SIGNAL(clicked()));
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
        const auto colourOf = [this](const char *label) {
            return page->findChild<QWidget *>(label)->styleSheet();
        };
        const QString inUse = "QLabel{font-size:24px;color:#00E5FF;}";
        QCOMPARE(colourOf("label_C"), inUse);
        MessageLog log;
        tap(page->findChild<QWidget *>("checkBox_tempture"));
        QCOMPARE(log.lines(), QStringList{"tempture is ℉..."});
        QCOMPARE(colourOf("label_F"), inUse);
        QCOMPARE(colourOf("label_C"), "QLabel{font-size:24px;color:#FFFFFF;}");
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
