#include "mainscreen/DigitRow.h"
#include "mainscreen/HumidityPage.h"
#include "mainscreen/TemperaturePage.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"

#include <QLabel>

namespace {
QString written(const std::optional<DigitRow> &row)
{
    if (!row)
        return QStringLiteral("unchanged");
    QString text;
    for (const Glyph glyph : {row->minus, row->hundreds, row->tens, row->units}) {
        if (glyph != glyphHidden)
            text += glyph >= 0 ? QString::number(glyph) : glyph == glyphDash ? "-" : "_";
    }
    return text + QStringLiteral(" %1").arg(row->width);
}

QLabel *place(const QWidget &page, const char *name)
{
    return page.findChild<QLabel *>(name);
}

bool shows(const QLabel *label, Glyph glyph)
{
    return label->pixmap(Qt::ReturnByValue).toImage() == QPixmap(glyphPicture(glyph)).toImage();
}
} // namespace

class TestReadingPages : public QObject
{
    Q_OBJECT

private slots:
    void rows_data()
    {
        QTest::addColumn<QStringList>("expected"); // PM2.5, temperature, humidity
        QTest::newRow("5") << QStringList{"005 329", "05 298", "05 273"};
        QTest::newRow("100") << QStringList{"100 329", "_0 298", "_0 273"};
        QTest::newRow("999") << QStringList{"999 329", "_9 298", "_9 273"};
        QTest::newRow("1000") << QStringList{"1000 433", "_0 298", "_0 273"};
        QTest::newRow("9998") << QStringList{"9998 433", "_8 298", "_8 273"};
        QTest::newRow("9999") << QStringList{"-- 225", "-- 298", "-- 273"};
        QTest::newRow("10000") << QStringList{"unchanged", "_0 298", "_0 273"};
        QTest::newRow("-5") << QStringList{"--- 329", "-05 402", "-- 273"};
        QTest::newRow("-2147483648") << QStringList{"--- 329", "-_8 402", "-- 273"};
    }

    void rows()
    {
        const int value = QByteArray(QTest::currentDataTag()).toInt();
        const QStringList row{written(pmRow(value)), written(temperatureRow(value)),
                              written(humidityRow(value))};
        QTEST(row, "expected");
    }

    void pagesDrawTheRowCentred()
    {
        TemperaturePage page;
        const auto *frame = page.findChild<QWidget *>("frame_value");
        const auto stands = [&](const char *first, int frameX, int firstX, int unitsX) {
            return frame->x() == frameX && frameX + place(page, first)->x() == firstX &&
                   frameX + place(page, "label_units")->x() == unitsX;
        };
        QVERIFY(stands("label_tens", 182, 182, 286));
        QVERIFY(shows(place(page, "label_units"), glyphDash));
        page.update_currentData(-23);
        QVERIFY(stands("label_minus", 130, 130, 338));
        QVERIFY(shows(place(page, "label_units"), 3));
        page.update_currentData(9999);
        QVERIFY(stands("label_tens", 182, 218, 322));
    }

    void missingReadingTakesTheUnitForGood()
    {
        TemperaturePage temperature;
        HumidityPage humidity;
        QVERIFY(!place(temperature, "label_symbol")->isHidden());
        QCOMPARE(place(humidity, "label_symbol")->width(), 65);
        QVERIFY(shows(place(humidity, "label_tens"), 4));
        MessageLog log;
        for (const int value : {9999, 21}) {
            temperature.update_currentData(value);
            humidity.update_currentData(value);
        }
        QCOMPARE(log.lines(), QStringList({"Error Temp number:9999", "Error Hum number:9999"}));
        QVERIFY(place(temperature, "label_symbol")->isHidden());
        QVERIFY(place(humidity, "label_symbol")->isHidden());
        temperature.update_currentData(104);
        QCOMPARE(log.lines().size(), 3);
        QVERIFY(shows(place(temperature, "label_tens"), glyphBlank));
    }
};

ZELL_TEST_MAIN(TestReadingPages)
#include "test_reading_pages.moc"
