#include "settings/TimeZoneItemDelegate.h"
#include "settings/TimeZonePage.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/Touch.h"

#include <QScrollBar>
#include <QTableWidget>

class TestTimeZone : public QObject
{
    Q_OBJECT

private slots:
    void linesAreSplitAtTheTab_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("zone");
        QTest::addColumn<QString>("description");
        QTest::newRow("whole") << "A+01:00\ttext"
                               << "A+01:00"
                               << "text";
        QTest::newRow("no tab") << "A+01:00"
                                << "A+01:00"
                                << "";
        QTest::newRow("empty") << ""
                               << ""
                               << "";
    }

    void linesAreSplitAtTheTab()
    {
        QFETCH(QString, line);
        QTEST(timeZoneItem::fromLine(line).zone, "zone");
        QTEST(timeZoneItem::fromLine(line).description, "description");
    }

    void checkMarkMovesAndTheListScrolls()
    {
        TimeZonePage page;
        page.show();
        auto *table = page.findChild<QTableWidget *>("tableWidget_timeZone");
        const auto flags = [table] {
            QString text;
            for (int row = 0; row < table->rowCount(); ++row)
                text += table->item(row, 1)->text();
            return text;
        };
        QCOMPARE(table->item(0, 0)->text(), "KLT+14:00\t基里巴斯线岛时间");
        QCOMPARE(table->item(15, 0)->text(), "MHT+09:00\t马绍尔群岛瓜加林岛时间");
        QCOMPARE(flags(), QString(16, '0'));

        const auto doubleTap = [&page](const QPoint &at) {
            tapAt(&page, at);
            QTest::mouseDClick(page.windowHandle(), Qt::LeftButton, {}, at);
        };
        doubleTap({200, 100});
        QCOMPARE(flags(), "1" + QString(15, '0'));
        doubleTap({750, 420});
        QCOMPARE(flags(), "001" + QString(13, '0'));
        QTRY_COMPARE(table->verticalScrollBar()->value(), 0);

        drag(&page, {300, 400}, {300, 280}, 1);
        QTRY_COMPARE(table->verticalScrollBar()->value(), 120);
        QCOMPARE(flags(), "001" + QString(13, '0'));
        const QImage picture = page.grab().toImage();
        QCOMPARE(picture.pixelColor(600, 250), picture.pixelColor(600, 150));
    }

    void missingCheckMarkIsLogged()
    {
        MessageLog log;
        TimeZoneItemDelegate delegate{QPixmap()};
        QCOMPARE(log.lines(), QStringList{"pixChecked error"});
    }
};

ZELL_TEST_MAIN(TestTimeZone)
#include "test_time_zone.moc"
