#include "settings/TimeZoneItemDelegate.h"
#include "settings/TimeZonePage.h"
#include "testkit/Environment.h"
#include "testkit/Touch.h"

#include <QScrollBar>
#include <QTableWidget>

class TestTimeZone : public QObject
{
    Q_OBJECT

private slots:
    void linesAreSplitAtTheTab()
    {
        QCOMPARE(timeZoneItem::fromLine("A+01:00\ttext").zone, "A+01:00");
        QCOMPARE(timeZoneItem::fromLine("A+01:00\ttext").description, "text");
        QCOMPARE(timeZoneItem::fromLine("A+01:00").zone, "A+01:00");
        QCOMPARE(timeZoneItem::fromLine("A+01:00").description, "");
    }

    void checkMarkMovesAndTheListScrolls()
    {
        TimeZonePage page;
        page.show();
        auto *table = page.findChild<QTableWidget *>("tableWidget_timeZone");
        const auto marked = [table] {
            QList<int> rows;
            for (const auto *item : table->findItems("1", Qt::MatchExactly))
                rows.append(item->row());
            return rows;
        };
        QCOMPARE(table->item(15, 0)->text(), "MHT+09:00\t马绍尔群岛瓜加林岛时间");
        QCOMPARE(table->rowCount(), 16);
        QCOMPARE(marked(), QList<int>());
        for (const QPoint &at : {QPoint(200, 100), QPoint(750, 420)}) {
            tapAt(&page, at);
            QTest::mouseDClick(page.windowHandle(), Qt::LeftButton, {}, at);
        }
        QCOMPARE(marked(), QList<int>{2});
        drag(&page, {300, 400}, {300, 280}, 1);
        QTRY_COMPARE(table->verticalScrollBar()->value(), 120);
        const QImage picture = page.grab().toImage();
        QCOMPARE(picture.pixelColor(600, 250), picture.pixelColor(600, 150));
    }
};

ZELL_TEST_MAIN(TestTimeZone)
#include "test_time_zone.moc"
