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
#include <QQuickItem>
#include <QScopeGuard>
#include <QScrollBar>
#include <QTableWidget>
#include <malloc.h>

class TestTimePages : public QObject
{
    Q_OBJECT

    struct Clock
    {
        const char *name;
        bool is24Hour;
        const char *format;
    };
    struct Wheel
    {
        const char *name;
        QString file;
        int index;
        QString text;
        QString next;
    };

private slots:
    void init()
    {
        menu = std::make_unique<OptionPage>();
        menu->show();
    }
    void cleanup()
    {
        page.reset();
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
            for (const int y : {334, 226}) {
                if (row.is24Hour)
                    break;
                tapAt(menu.get(), {756, y});
                QCOMPARE(turned("widget_amp"), y == 334 ? 1 - half / 12 : half / 12);
            }
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
        const QImage dark = table->grab().toImage();
        QElapsedTimer sinceTap;
        sinceTap.start();
        tapAt(menu.get(), {200, 100});
        QTRY_COMPARE(table->grab().toImage(), dark);
        QCOMPARE_GE(sinceTap.elapsed(), 570);
        for (const QPoint &at : {QPoint(200, 100), QPoint(750, 420)})
            doubleTapAt(menu.get(), at);
        QCOMPARE(table->findItems("1", Qt::MatchExactly).size(), 1);
        QCOMPARE(table->item(2, 1)->text(), "1");
        // A move before would add what the list has glided meanwhile.
        pressAt(menu.get(), {300, 400});
        releaseAt(menu.get(), {300, 280});
        QTRY_COMPARE(table->verticalScrollBar()->value(), 120);
    }

    void wheelsBeginAnewAfterTheirLastRow_data()
    {
        // The wheel of dates is a year around the day before a leap day.
        addRows<Wheel>({{"hours", "hour", 23, "23", "00"},
                        {"hours of half a day", "hour12", 11, "11", "00"},
                        {"minutes", "minute", 59, "59", "00"},
                        {"afternoon", "amp", 1, "下午", ""},
                        {"leap day", "date", 1, "02月29日 星期四", "03月01日 星期五"},
                        {"half a year", "date", 181, "08月27日 星期二", "08月29日 星期二"},
                        {"yesterday", "date", 364, "02月27日 星期二", "02月28日 星期三"}});
    }

    void wheelsBeginAnewAfterTheirLastRow()
    {
        QFETCH(Wheel, row);
        const MessageLog log;
        load(row.file, row.index);
        host->rootObject()->setProperty("today", QDate(2024, 2, 28).startOfDay());
        QCOMPARE(host->currentIndex(), row.index);
        const auto current = rows().size() / 2;
        QCOMPARE(rows()[current]->property("text").toString(), row.text);
        if (!row.next.isEmpty())
            QCOMPARE(rows()[current + 1]->property("text").toString(), row.next);
        QCOMPARE(log.lines(), QStringList());
    }

    void everyDayHasItsNameWhereSummerBeginsAtMidnight()
    {
        const auto enter = [this](const QByteArray &zone) {
            qputenv("TZ", zone);
            tzset();
            host->engine()->evaluate("Date.timeZoneUpdated()");
        };
        load("date");
        const auto leave = qScopeGuard([&, before = qgetenv("TZ")] { enter(before); });
        enter("Asia/Beirut");
        // In the last hour before the one that is left out.
        host->rootObject()->setProperty("today", QDateTime({2024, 3, 30}, {23, 30}));
        QStringList names(365);
        for (int day = 0; day < names.size(); ++day)
            QMetaObject::invokeMethod(host->rootObject(), "dayText",
                                      Q_RETURN_ARG(QString, names[day]), Q_ARG(int, day));
        QCOMPARE(names.removeDuplicates(), 0);
        QCOMPARE(host->rootObject()->property("untilMidnight").toInt(), 1000);
    }

    void fingerTurnsWithoutGapAndStopsOnARow()
    {
        load("date");
        QCOMPARE(host->rootObject()->property("today").toDate(), QDate::currentDate());
        pressAt(page.get(), {240, 280});
        for (int y = 280; y > 80; y -= 7) {
            moveTo(page.get(), {240, y});
            QCOMPARE(rows().size(), 7);
            for (int i = 1; i < 7; ++i)
                QVERIFY(std::abs(middleOf(i) - middleOf(i - 1) - 62.5) < 0.01);
            // The next one at either end would be wholly out of the wheel's window, 20 to 320.
            QVERIFY(middleOf(0) < 62.5);
            QVERIFY(middleOf(6) > 340 - 62.5);
        }
        releaseAt(page.get(), {240, 80});
        QTRY_VERIFY_WITH_TIMEOUT(!wheel()->property("moving").toBool(), 15000);
        QVERIFY(host->currentIndex() > 2);
        QVERIFY(std::abs(middleOf(3) - 182.5) < 0.5);
    }

    void hiddenSpinnerHoldsNoPictureButItsRow()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("the sanitizer's allocator keeps no count");
#endif
        const auto bytesInUse = [] { return mallinfo2().uordblks + mallinfo2().hblkhd; };
        load("hour", 9);
        const QImage before = page->grab().toImage();
        constexpr auto picture = std::size_t{350} * 320 * 4;
        const auto bytesShown = bytesInUse();
        page->hide();
        QVERIFY(bytesShown > bytesInUse() + picture * 9 / 10);
        page->show();
        QCOMPARE(page->grab().toImage(), before);
    }

    void missingWheelIsOneLine()
    {
        const MessageLog log;
        load("no such");
        QVERIFY(!host->rootObject());
        QCOMPARE(host->currentIndex(), -1);
        QCOMPARE(log.count("spinner_no such.qml"), 1);
    }

private:
    void open(const char *button)
    {
        tap(shown(button));
    }
    QWidget *shown(const char *name) const
    {
        return visibleChild(menu.get(), name);
    }

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

    /// Shows a wheel of its own on a page of its own.
    void load(const QString &file, int row = 0)
    {
        page = std::make_unique<QWidget>();
        page->resize(854, 480);
        host = new QmlApplicationViewer(page.get());
        host->setGeometry(88, 98, 350, 320);
        host->hide();
        page->show();
        host->setMainQmlFile(QStringLiteral("qrc:/resource/qml/spinner_%1.qml").arg(file), row);
        host->showExpanded();
    }

    QQuickItem *wheel() const
    {
        return host->rootObject()->findChild<QQuickItem *>("wheel");
    }

    /// The rows that the wheel has placed, from top to bottom.
    QList<QQuickItem *> rows() const
    {
        QList<QQuickItem *> found;
        for (auto *item : wheel()->childItems()[0]->childItems()) {
            if (item->property("text").isValid())
                found << item;
        }
        std::sort(found.begin(), found.end(), [](auto *a, auto *b) { return a->y() < b->y(); });
        return found;
    }

    /// The middle of the row at @p index in px below the top of the host.
    double middleOf(int index) const
    {
        const QQuickItem *row = rows()[index];
        return row->mapToScene({0, row->height() / 2}).y();
    }

    std::unique_ptr<OptionPage> menu;
    std::unique_ptr<QWidget> page;
    QmlApplicationViewer *host = nullptr;
};

ZELL_TEST_MAIN(TestTimePages)
#include "test_time_pages.moc"
