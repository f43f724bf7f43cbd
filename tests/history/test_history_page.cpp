#include "history/Blackboard.h"
#include "history/HistoryPage.h"
#include "history/SlideLabel.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/Touch.h"

#include <QLabel>
#include <QRadioButton>
#include <QSignalSpy>

namespace {
// 21 July 2016, 16:00 local time.
constexpr qint64 afternoon = 1469088000;
constexpr QPoint tab7days(680, 40);
constexpr QPoint tab24hours(780, 40);

QPoint dayButton(int day)
{
    return {40, 88 + 48 * day + 24};
}
} // namespace

class TestHistoryPage : public QObject
{
    Q_OBJECT

private slots:
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

    void startsWithTodayAndLeadsBack()
    {
        QVERIFY(page->findChild<QRadioButton *>("radio_day0")->isChecked());
        QVERIFY(sameAs("history-24h.png"));
        QSignalSpy back(page, &HistoryPage::signal_backDefaultPage);
        tapAt(host.get(), {47, 40});
        QCOMPARE(back.count(), 1);
    }

    void tabsAndDays()
    {
        const MessageLog log;
        tapAt(host.get(), tab7days);
        QVERIFY(log.contains("show 7 days data"));
        for (const int day : {6, 3, 2}) {
            tapAt(host.get(), dayButton(day));
            QCOMPARE(chart->day, day);
        }
        QVERIFY(sameAs("history-7days.png"));

        tapAt(host.get(), tab24hours);
        QVERIFY(log.contains("show 24 hours data"));
        QVERIFY(sameAs("history-24h.png"));
        tapAt(host.get(), tab7days);
        QCOMPARE(chart->day, 2);
        QVERIFY(sameAs("history-7days.png"));
    }

    void aFingerReadsTheChart()
    {
        tapAt(host.get(), tab7days);
        tapAt(host.get(), dayButton(2));
        const QPoint place = chart->mapTo(host.get(), QPoint());
        pressAt(host.get(), {300, 300});
        QTRY_VERIFY(visibleChild(page, "frame_top") == nullptr);
        QCOMPARE(chart->mapTo(host.get(), QPoint()), place);
        QSignalSpy touched(chart, &Blackboard::signalTouch);
        const MessageLog log;
        for (int x = 310; x <= 450; x += 10) {
            moveTo(host.get(), {x, 30});
            QTRY_VERIFY(!touched.isEmpty());
            const float dot = touched.last()[0].toFloat();
            QCOMPARE(readOut()->geometry(), QRect(int(dot - 35), 0, 200, 76));
            QCOMPARE(readOutText(1), QString::number(touched.last()[2].toDouble(), 'f', 1));
            touched.clear();
        }
        QVERIFY(log.contains("x: "));
        QCOMPARE(readOutText(0), QString("2005-7-11/23:02"));
        QCOMPARE(readOutText(2), QString("℃"));
        QVERIFY(sameAs("history-7days-touch.png"));
        releaseAt(host.get(), {450, 30});
        QVERIFY(!readOut()->isVisible());
        QVERIFY(visibleChild(page, "frame_top"));
        QVERIFY(log.contains("Release"));
        QVERIFY(sameAs("history-7days.png"));
    }

    void theQuantityIsShownWithTheNextData()
    {
        page->showing(1);
        pressAt(host.get(), {300, 300});
        QTRY_COMPARE(readOutText(2), QString("℃"));
        const double before = readOutText(1).toDouble();
        page->loadData();
        QTRY_COMPARE(readOutText(2), QString("μg/m³"));
        QVERIFY(before >= 50 && readOutText(1).toDouble() < 50);
    }

    void midnightBeginsANewDay()
    {
        QCOMPARE(page->findChild<QRadioButton *>("radio_day0")->text(), QString("21 日"));
        QCOMPARE(page->findChild<QRadioButton *>("radio_day6")->text(), QString("15 日"));
        now = afternoon + 28800 - 1;
        page->loadData();
        now += 1;
        QTRY_COMPARE(page->findChild<QRadioButton *>("radio_day0")->text(), QString("22 日"));
        QSignalSpy touched(chart, &Blackboard::signalTouch);
        pressAt(host.get(), {300, 300});
        QTRY_VERIFY(!touched.isEmpty());
        QVERIFY(touched.last()[1].toLongLong() >= now);
    }

private:
    QWidget *readOut() { return page->findChild<SlideLabel *>(); }

    QString readOutText(int label) { return readOut()->findChildren<QLabel *>()[label]->text(); }

    bool sameAs(const char *picture)
    {
        QCoreApplication::processEvents();
        const QString difference =
            pictureDifference(host->grab().toImage(), ZELL_REFERENCE_DIR, picture);
        if (!difference.isEmpty())
            qWarning("%s", qPrintable(difference));
        return difference.isEmpty();
    }

    qint64 now = 0;
    std::unique_ptr<QWidget> host;
    HistoryPage *page = nullptr;
    Blackboard *chart = nullptr;
};

ZELL_TEST_MAIN(TestHistoryPage)
#include "test_history_page.moc"
