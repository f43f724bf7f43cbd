#include "connectivity/CharacterButton.h"
#include "connectivity/connectApp.h"
#include "connectivity/setLocation.h"
#include "connectivity/tryConnectApp.h"
#include "pages/Ground.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/Touch.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalSpy>

class TestAppAndLocation : public QObject
{
    Q_OBJECT

private slots:
    void appPageInvitesToPair()
    {
        open<connectApp>();
        compare("app-page.png");
        QVERIFY(!on("label_disonnected") && !on("button_disconnectApp"));
        MessageLog log;
        tap(on("button_appStore"));
        tap(on("button_googlePlay"));
        QVERIFY(log.contains("Download Zell App from Apple Store ..."));
        QVERIFY(log.contains("Download Zell App from Google Play ..."));
    }

    void numberShowsTheDigitsItLogs()
    {
        MessageLog log;
        auto *number = open<tryConnectApp>();
        for (int i = 0; i < 4; ++i) {
            auto *label = static_cast<QLabel *>(on(qPrintable(QString("label_num%1").arg(i + 1))));
            const QString digit = label->text();
            QVERIFY(digit.size() == 1 && digit.front().isDigit());
            QVERIFY(log.contains(QString("generate random number[%1] ...is %2").arg(i).arg(digit)));
            label->setText(QString::number(i * 3));
        }
        compare("pairing-number.png");
        number->check_connect_result();
        QVERIFY(on("label_background") && !on("label_connectSuccess"));
    }

    void wayBackOfTheNumberLeavesTheAppPageTwice()
    {
        auto *app = open<connectApp>();
        QSignalSpy left(app, &connectApp::signal_backDefaultPage);
        tap(on("button_connectApp"));
        tap(on("button_back"));
        QCOMPARE(left.count(), 2);
        app->jump_tryConnectApp_page();
        QCOMPARE(app->findChildren<tryConnectApp *>().size(), 2);
    }

    void unpairingAsksFirst()
    {
        auto *app = open<connectApp>();
        QSignalSpy left(app, &connectApp::signal_backDefaultPage);
        app->jump_disconnectApp_page();
        compare("unpair-confirm.png");
        tap(on("button_cancel"));
        QCOMPARE(left.count(), 1);
        app->jump_disconnectApp_page();
        tap(on("button_confirm"));
        QVERIFY(on("page_connectResult"));
    }

    void typedPlaceIsShownClearedAndDropped()
    {
        open<setLocation>();
        compare("location.png");
        MessageLog log;
        tap(on("button_ok"));
        QVERIFY(log.contains("set network locate"));
        tap(on("button_search"));
        type("bei");
        compare("location-search.png");
        tap(on("button_delete"));
        type("be");

        tap(on("button_enter"));
        compare("location-result.png");
        QCOMPARE(list()->count(), 7);
        QCOMPARE(list()->item(6)->text(), "北渡1，上海，中国");
        QCOMPARE(list()->visualItemRect(list()->item(1)), QRect(0, 80, 712, 80));
        tap(on("button_deleteLocation"));
        QVERIFY(!on("listWidget"));
        compare("location-no-result.png");

        // Back to what was typed; a further search stands on a fresh list.
        tap(on("button_back"));
        QCOMPARE(static_cast<QLineEdit *>(on("lineEdit"))->text(), "be");
        tap(on("button_enter"));
        QCOMPARE(list()->count(), 7);
    }

    void resultsFollowTheFinger()
    {
        open<setLocation>();
        tap(on("button_search"));
        tap(on("button_enter"));
        const QScrollBar *bar = list()->verticalScrollBar();
        QCOMPARE(bar->maximum(), 7 * 80 - 320);
        drag(page.get(), {400, 400}, {400, 340}, 1);
        QTRY_COMPARE(bar->value(), 60);
        QCOMPARE(on("scrollBar_result")->property("value").toInt(), 60);
        tapAt(page.get(), {400, 300});
        QCOMPARE(bar->value(), 60);
        drag(page.get(), {400, 200}, {400, 470}, 1);
        QTRY_COMPARE(bar->value(), 0);
    }

    void wayBackOfTheSearchLeavesTheLocationPage()
    {
        QSignalSpy left(open<setLocation>(), &setLocation::signal_backDefaultPage);
        tap(on("button_search"));
        type("x");
        tap(on("button_back"));
        QCOMPARE(left.count(), 1);
        QMetaObject::invokeMethod(page.get(), "jump_searchLocation_page");
        QCOMPARE(static_cast<QLineEdit *>(on("lineEdit"))->text(), "");
    }

private:
    template <class Page>
    Page *open()
    {
        auto opened = std::make_unique<Page>();
        Page *result = opened.get();
        page = std::move(opened);
        fillGround(result);
        result->show();
        return result;
    }
    /// The topmost visible widget of that name.
    QWidget *on(const char *name)
    {
        QWidget *newest = nullptr;
        for (QWidget *widget : page->findChildren<QWidget *>(name))
            newest = widget->isVisible() ? widget : newest;
        return newest;
    }
    QListWidget *list() { return static_cast<QListWidget *>(on("listWidget")); }
    void type(const QString &text)
    {
        for (const QChar letter : text) {
            for (auto *key : page->findChildren<CharacterButton *>()) {
                if (key->isVisible() && key->text() == letter)
                    tap(key);
            }
        }
    }
    void compare(const char *name)
    {
        const QString problem = pictureDifference(page->grab().toImage(), ZELL_REFERENCE_DIR, name);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
    }

    std::unique_ptr<QWidget> page;
};

ZELL_TEST_MAIN(TestAppAndLocation)
#include "test_app_and_location.moc"
