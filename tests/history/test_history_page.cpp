#include "history/Blackboard.h"
#include "history/HistoryPage.h"
#include "history/SlideLabel.h"
#include "pages/CancelledTouch.h"
#include "testkit/Environment.h"
#include "testkit/Touch.h"

#include <QLabel>
#include <QRadioButton>
#include <QSignalSpy>

namespace {
// 21 July 2016, 16:00 local time.
constexpr qint64 afternoon = 1469088000;
constexpr QPoint tab7days(680, 40);
constexpr QPoint tab24hours(780, 40);
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
        page = std::make_unique<HistoryPage>(nullptr, [this] { return now; });
        chart = page->findChild<Blackboard *>();
        page->show();
        QVERIFY(QTest::qWaitForWindowExposed(page.get()));
    }

    void tabsAndDaysAndTheWayBack()
    {
        const QImage before = page->grab().toImage();
        // What the panel takes back was shown, and chooses nothing.
        new CancelledTouch(page.get());
        pressAt(page.get(), tab7days);
        QCOMPARE(page->grab().toImage().pixelColor(640, 22), QColor(0, 30, 33));
        cancelAt(page.get(), tab7days);
        QCOMPARE(page->grab().toImage(), before);
        // So is what the finger leaves.
        pressAt(page.get(), tab7days);
        moveTo(page.get(), {300, 300});
        QCOMPARE(page->grab().toImage(), before);
        releaseAt(page.get(), {300, 300});
        tapAt(page.get(), tab7days);
        for (const int day : {6, 3}) {
            const QPoint place(40, 112 + 48 * day);
            const QImage dark = page->grab().toImage();
            pressAt(page.get(), place);
            QVERIFY(page->grab().toImage() != dark);
            releaseAt(page.get(), place);
            QCOMPARE(chart->day, day);
        }
        const QImage third = page->grab().toImage();
        tapAt(page.get(), tab24hours);
        QCOMPARE(page->grab().toImage(), before);
        tapAt(page.get(), tab7days);
        QCOMPARE(page->grab().toImage(), third);
        const QSignalSpy back(page.get(), &HistoryPage::signal_backDefaultPage);
        tapAt(page.get(), {47, 40});
        QCOMPARE(back.count(), 1);
    }

    void aFingerReadsTheChart()
    {
        tapAt(page.get(), tab7days);
        const QPoint place = chart->mapTo(page.get(), QPoint());
        pressAt(page.get(), {300, 300});
        QTRY_VERIFY(!visibleChild(page.get(), "frame_top"));
        QCOMPARE(chart->mapTo(page.get(), QPoint()), place);
        QSignalSpy touched(chart, &Blackboard::signalTouch);
        moveTo(page.get(), {90, 30});
        QTRY_VERIFY(!touched.isEmpty());
        const QVariantList reading = touched.last();
        QCOMPARE(readOut()->geometry(), QRect(int(reading[0].toFloat() - 35), 0, 200, 76));
        QCOMPARE(readOutText(0), QString("2005-7-11/23:02"));
        QCOMPARE(readOutText(1), QString::number(reading[2].toDouble(), 'f', 1));
        QCOMPARE(readOutText(2), QString("℃"));
        const auto color = reading[3].value<QColor>();
        QCOMPARE(readOut()->grab().toImage().pixelColor(9, 50), color);
        QTRY_VERIFY(readOut()->findChildren<QLabel *>()[1]->styleSheet().contains(color.name()));
        const QImage degrees = readOut()->grab({130, 34, 70, 42}).toImage();
        // White on a bright plate, and dark where the two meet.
        const QImage plate =
            readOut()->grab({30, 40, 60, 26}).toImage().convertToFormat(QImage::Format_Grayscale8);
        QCOMPARE(*std::max_element(plate.bits(), plate.bits() + plate.sizeInBytes()), 255);
        QVERIFY(*std::min_element(plate.bits(), plate.bits() + plate.sizeInBytes()) < 110);
        // Another quantity is shown with the next data, and a number of none as humidity.
        QString shown = "温度  ℃";
        for (const auto &[number, title] :
             QList<std::pair<int, QString>>{{3, "湿度  %"}, {0, "湿度  %"}, {1, "PM2.5  μg/m³"}}) {
            page->showing(number);
            QCOMPARE(labelOf("label_title")->text(), shown);
            page->loadData();
            shown = title;
        }
        QCOMPARE(labelOf("label_title")->text(), shown);
        QTRY_COMPARE(readOutText(2), QString("μg/m³"));
        QVERIFY(readOut()->grab({130, 34, 70, 42}).toImage() != degrees);
        releaseAt(page.get(), {90, 30});
        QVERIFY(!readOut()->isVisible());
        QVERIFY(visibleChild(page.get(), "frame_top"));
    }

    void daysFollowTheClockAndEveryOpening()
    {
        QCOMPARE(dayText(6), QString("15 日"));
        page->hide();
        now += 2 * 86400 + 8 * 3600 - 1;
        page->show();
        QCOMPARE(dayText(0), QString("23 日"));
        // A clock that is set, while nothing is left to paint.
        QCoreApplication::processEvents();
        now -= 2 * 86400;
        QTRY_COMPARE(dayText(0), QString("21 日"));
        pressAt(page.get(), {300, 300});
        QTRY_VERIFY(readOut()->isVisible());
        now += 1;
        QTRY_COMPARE(dayText(0), QString("22 日"));
        // The reading under the finger is yesterday's now.
        QTRY_VERIFY(!readOut()->isVisible());
    }

private:
    QLabel *labelOf(const char *name) { return page->findChild<QLabel *>(name); }
    QWidget *readOut() { return page->findChild<SlideLabel *>(); }
    QString readOutText(int label) { return readOut()->findChildren<QLabel *>()[label]->text(); }
    QString dayText(int day)
    {
        return page->findChild<QRadioButton *>(QString("radio_day%1").arg(day))->text();
    }

    qint64 now = 0;
    std::unique_ptr<HistoryPage> page;
    Blackboard *chart = nullptr;
};

ZELL_TEST_MAIN(TestHistoryPage)
#include "test_history_page.moc"
