#include "settings/DateTimePage.h"
#include "settings/OptionPage.h"
#include "settings/QmlApplicationViewer.h"
#include "settings/TimeZonePage.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"
#include "testkit/Touch.h"

#include <QDateTime>
#include <QQmlEngine>
#include <QScrollBar>
#include <QTableWidget>

class TestTimePages : public QObject
{
    Q_OBJECT

    struct Clock
    {
        const char *name;
        bool is24Hour;
        const char *format;
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
        addRows<Clock>(
            {{"24 hours", true, "yyyy-MM-dd HH:mm"}, {"12 hours", false, "yyyy-MM-dd hh:mm AP"}});
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
            QTRY_COMPARE_GE(secondsSinceShown(row.format), 0);
            QCOMPARE_LT(secondsSinceShown(row.format), 65);
            open("button_dateTime");
            QCOMPARE(!shown("widget_amp"), row.is24Hour);
            const int half = row.is24Hour ? 0 : turned("widget_amp") * 12;
            const QTime start(turned("widget_hour") + half, turned("widget_min"));
            QCOMPARE_GE(start.secsTo(QTime::currentTime()), 0);
            QCOMPARE_LT(start.secsTo(QTime::currentTime()), 65);
            QCOMPARE(turned("widget_date"), 0);
            QTest::keyClick(shown("widget_date"), Qt::Key_Up);
            QCOMPARE(turned("widget_date"), 364);
            open("button_back");
        }
        QCOMPARE(log.lines(), QStringList());
    }

    void finishOfTheNightOpensAtHalfPastTen()
    {
        open("option_frame_nightPattern");
        open("button_finishTime");
        QCOMPARE(QTime(turned("widget_hour"), turned("widget_min")), QTime(22, 30));
    }

    void chosenZoneCarriesTheOnlyMark()
    {
        open("option_setTime");
        open("button_timeZone");
        auto *table = static_cast<QTableWidget *>(shown("tableWidget_timeZone"));
        QCOMPARE(table->rowCount(), 16);
        QCOMPARE(table->item(15, 0)->text(), "MHT+09:00\t马绍尔群岛瓜加林岛时间");
        QVERIFY(table->findItems("1", Qt::MatchExactly).isEmpty());
        for (const QPoint &at : {QPoint(200, 100), QPoint(750, 420)})
            doubleTapAt(menu.get(), at);
        QCOMPARE(table->findItems("1", Qt::MatchExactly).size(), 1);
        QCOMPARE(table->item(2, 1)->text(), "1");
        drag(menu.get(), {300, 400}, {300, 280}, 1);
        QTRY_COMPARE(table->verticalScrollBar()->value(), 120);
    }

private:
    void open(const char *button) { tap(shown(button)); }
    QWidget *shown(const char *name) const { return visibleChild(menu.get(), name); }

    int turned(const char *wheel) const
    {
        return qobject_cast<QmlApplicationViewer *>(shown(wheel))->currentIndex();
    }

    /// -1 where what the page shows is no such time.
    qint64 secondsSinceShown(const QString &format) const
    {
        const QString text = shown("button_currentDateTime")->property("text").toString();
        const QDateTime time = QDateTime::fromString(text, format);
        return time.isValid() ? time.secsTo(QDateTime::currentDateTime()) : -1;
    }

    std::unique_ptr<OptionPage> menu;
};

ZELL_TEST_MAIN(TestTimePages)
#include "test_time_pages.moc"
