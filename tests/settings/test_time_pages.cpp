#include "settings/DateTimePage.h"
#include "settings/OptionPage.h"
#include "settings/QmlApplicationViewer.h"
#include "settings/timePage.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"
#include "testkit/Touch.h"

#include <QDateTime>
#include <QQmlEngine>
#include <memory>

class TestTimePages : public QObject
{
    Q_OBJECT

    struct Clock
    {
        const char *name;
        bool is24Hour;
        const char *format;
        int hourX;
    };
    struct Time
    {
        const char *name;
        const char *button;
    };

private slots:
    void init()
    {
        menu = std::make_unique<OptionPage>();
        menu->show();
    }
    void cleanup()
    {
        menu.reset();
        QCOMPARE(DateTimePage::instance, nullptr);
    }

    // The first test: no spinner has been loaded before.
    void spinnersAreReadyBeforeTheyAreOpened()
    {
        QVERIFY(!qApp->findChild<QQmlEngine *>());
        open("option_setTime");
        QTRY_VERIFY(qApp->findChild<QQmlEngine *>());
    }

    void clockSwitchChoosesTextAndWheels_data()
    {
        addRows<Clock>({{"24 hours", true, "yyyy-MM-dd HH:mm", 452},
                        {"12 hours", false, "yyyy-MM-dd hh:mm AP", 362}});
    }

    void clockSwitchChoosesTextAndWheels()
    {
        QFETCH(Clock, row);
        const MessageLog log;
        open("option_setTime");
        if (!row.is24Hour)
            open("checkBox_24Hours");
        QCOMPARE(shown("button_on")->property("checked").toBool(), row.is24Hour);
        for (int visit = 1; visit <= 2; ++visit) {
            QTRY_VERIFY(clockShows(row.format));
            open("button_dateTime");
            QCOMPARE(shown("widget_hour")->x(), row.hourX);
            QCOMPARE(!shown("widget_amp"), row.is24Hour);
            const int half = row.is24Hour ? 0 : turned("widget_amp") * 12;
            const QTime start(turned("widget_hour") + half, turned("widget_min"));
            QCOMPARE_GE(start.secsTo(QTime::currentTime()), 0);
            QCOMPARE_LT(start.secsTo(QTime::currentTime()), 65);
            QCOMPARE(turned("widget_date"), 0);
            QTest::keyClick(shown("widget_date"), Qt::Key_Up);
            QCOMPARE(turned("widget_date"), 364);
            tap(shown("button_back"));
        }
        QCOMPARE(log.lines(), QStringList());
    }

    void bothTimesOpenAFreshPage_data()
    {
        addRows<Time>({{"start", "button_startTime"}, {"finish", "button_finishTime"}});
    }

    void bothTimesOpenAFreshPage()
    {
        QFETCH(Time, row);
        open("option_frame_nightPattern");
        for (int visit = 1; visit <= 2; ++visit) {
            open(row.button);
            QCOMPARE(menu->findChildren<timePage *>().size(), visit);
            QCOMPARE(QTime(turned("widget_hour"), turned("widget_min")), QTime(22, 30));
            QVERIFY(!shown("widget_amp"));
            QTest::keyClick(shown("widget_hour"), Qt::Key_Down);
            QCOMPARE(turned("widget_hour"), 23);
            const QString chosen = shown("pushButton_start")->styleSheet();
            tap(shown("pushButton_finish"));
            QVERIFY(shown("pushButton_start")->styleSheet() != chosen);
            tap(shown("pushButton_start"));
            QCOMPARE(shown("pushButton_start")->styleSheet(), chosen);
            tap(shown("button_back"));
            QVERIFY(shown("frame_startTime"));
            QVERIFY(!shown("widget_hour"));
        }
    }

private:
    void open(const char *button) { tap(shown(button)); }
    QWidget *shown(const char *name) const { return visibleChild(menu.get(), name); }

    int turned(const char *wheel) const
    {
        return qobject_cast<QmlApplicationViewer *>(shown(wheel))->currentIndex();
    }

    /// Whether the page shows the present minute, or the one that has just passed.
    bool clockShows(const QString &format) const
    {
        const QString text = shown("button_currentDateTime")->property("text").toString();
        const QDateTime now = QDateTime::currentDateTime();
        return text == now.toString(format) || text == now.addSecs(-5).toString(format);
    }

    std::unique_ptr<OptionPage> menu;
};

ZELL_TEST_MAIN(TestTimePages)
#include "test_time_pages.moc"
