#include "history/Blackboard.h"
#include "history/HistoryPage.h"
#include "history/SlideLabel.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/PictureCompare.h"
#include "testkit/Touch.h"

#include <QLabel>
#include <QRadioButton>
#include <QSignalSpy>

namespace {
// 21 July 2016, 16:00 local time.
constexpr qint64 afternoon = 1469088000;
constexpr QPoint tab7days(680, 40);
} // namespace

class TestHistoryPage : public QObject
{
    Q_OBJECT

private slots:
    // The days are those of UTC + 8 hours in any zone.
    void initTestCase() { qputenv("TZ", "UTC"); }

    void init()
    {
        now = afternoon;
        host = std::make_unique<QWidget>();
        // The style of the page that holds the history on the main screen.
        host->setStyleSheet("background-color: rgb(33, 33, 33);");
        host->resize(854, 480);
        page = new HistoryPage(host.get(), [this] { return now; });
        chart = page->findChild<Blackboard *>();
        host->show();
        QVERIFY(QTest::qWaitForWindowExposed(host.get()));
    }

    void tabsAndDaysAndTheWayBack()
    {
        const MessageLog log;
        QCOMPARE(difference("history-24h.png"), QString());
        tapAt(host.get(), tab7days);
        for (const int day : {6, 3, 2}) {
            tapAt(host.get(), {40, 112 + 48 * day});
            QCOMPARE(chart->day, day);
        }
        QCOMPARE(difference("history-7days.png"), QString());

        tapAt(host.get(), {780, 40});
        QCOMPARE(difference("history-24h.png"), QString());
        tapAt(host.get(), tab7days);
        QCOMPARE(difference("history-7days.png"), QString());
        QCOMPARE(log.lines().mid(1), QStringList({"show 24 hours data", "show 7 days data"}));
        QSignalSpy back(page, &HistoryPage::signal_backDefaultPage);
        tapAt(host.get(), {47, 40});
        QCOMPARE(back.count(), 1);
    }

    void aFingerReadsTheChart()
    {
        tapAt(host.get(), tab7days);
        tapAt(host.get(), {40, 112 + 48 * 2});
        const QPoint place = chart->mapTo(host.get(), QPoint());
        pressAt(host.get(), {300, 300});
        QTRY_VERIFY(visibleChild(page, "frame_top") == nullptr);
        QCOMPARE(chart->mapTo(host.get(), QPoint()), place);
        QSignalSpy touched(chart, &Blackboard::signalTouch);
        const MessageLog log;
        for (int x = 310; x <= 450; x += 10) {
            moveTo(host.get(), {x, 30});
            QTRY_VERIFY(!touched.isEmpty());
            const QVariantList reading = touched.takeLast();
            touched.clear();
            QCOMPARE(readOut()->geometry(), QRect(int(reading[0].toFloat() - 35), 0, 200, 76));
            QCOMPARE(readOutText(1), QString::number(reading[2].toDouble(), 'f', 1));
            QVERIFY(
                log.contains("x: " + reading[0].toString() + "  time: " + reading[1].toString()));
        }
        QCOMPARE(readOutText(0) + readOutText(2), QString("2005-7-11/23:02℃"));
        QCOMPARE(difference("history-7days-touch.png"), QString());
        releaseAt(host.get(), {450, 30});
        QVERIFY(!readOut()->isVisible() && visibleChild(page, "frame_top"));
        QVERIFY(log.lines().contains("Release"));
        QCOMPARE(difference("history-7days.png"), QString());
    }

    void theQuantityIsShownWithTheNextData()
    {
        page->showing(1);
        pressAt(host.get(), {300, 300});
        QTRY_COMPARE(readOutText(2), QString("℃"));
        QVERIFY(readOutText(1).toDouble() >= 50);
        page->loadData();
        QTRY_COMPARE(readOutText(2), QString("μg/m³"));
        QVERIFY(readOutText(1).toDouble() < 50);
    }

    void daysFollowMidnightAndEveryOpening()
    {
        QCOMPARE(dayText(0) + dayText(6), QString("21 日15 日"));
        for (const int daysLater : {1, 0}) {
            host->hide();
            now = afternoon + 86400 * daysLater + 8 * 3600 - 1;
            host->show();
            QCOMPARE(dayText(0), daysLater == 1 ? QString("22 日") : QString("21 日"));
        }
        pressAt(host.get(), {300, 300});
        QTRY_VERIFY(readOut()->isVisible());
        now += 1;
        QTRY_COMPARE(dayText(0), QString("22 日"));
        // The reading under the finger is yesterday's now.
        QTRY_VERIFY(!readOut()->isVisible());
    }

    void aClockThatIsSetRenamesTheDaysWithTheChart()
    {
        // An idle chart: all that the showing asked for is painted.
        QCoreApplication::processEvents();
        now -= 3 * 86400;
        QTRY_COMPARE(dayText(0), QString("18 日"));
    }

private:
    QWidget *readOut() { return page->findChild<SlideLabel *>(); }
    QString readOutText(int label) { return readOut()->findChildren<QLabel *>()[label]->text(); }
    QString dayText(int day)
    {
        return page->findChild<QRadioButton *>(QString("radio_day%1").arg(day))->text();
    }

    QString difference(const char *picture)
    {
        QCoreApplication::processEvents();
        return pictureDifference(host->grab().toImage(), ZELL_REFERENCE_DIR, picture);
    }

    qint64 now = 0;
    std::unique_ptr<QWidget> host;
    HistoryPage *page = nullptr;
    Blackboard *chart = nullptr;
};

ZELL_TEST_MAIN(TestHistoryPage)
#include "test_history_page.moc"
