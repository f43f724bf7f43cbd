#include "mainscreen/DigitRow.h"
#include "mainscreen/HumidityPage.h"
#include "mainscreen/TemperaturePage.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"

#include <QLabel>
#include <QSignalSpy>
#include <limits>

namespace {
QString written(const std::optional<DigitRow> &row)
{
    if (!row)
        return QStringLiteral("unchanged");
    QString text;
    for (const Glyph glyph : {row->minus, row->hundreds, row->tens, row->units}) {
        if (glyph != glyphHidden)
            text += glyph == glyphDash    ? QStringLiteral("-")
                    : glyph == glyphBlank ? QStringLiteral("_")
                                          : QString::number(glyph);
    }
    return text + QStringLiteral(" %1").arg(row->width);
}

QLabel *place(const QWidget &page, const char *name)
{
    return page.findChild<QLabel *>(name);
}
} // namespace

class TestReadingPages : public QObject
{
    Q_OBJECT

private slots:
    void rows_data()
    {
        constexpr int smallest = std::numeric_limits<int>::min();
        QTest::addColumn<QString>("pm");
        QTest::addColumn<QString>("temperature");
        QTest::addColumn<QString>("humidity");
        QTest::addColumn<int>("value");
        QTest::newRow("zero") << "000 329"
                              << "00 298"
                              << "00 273" << 0;
        QTest::newRow("leading zeros") << "035 329"
                                       << "35 298"
                                       << "35 273" << 35;
        QTest::newRow("hundred") << "100 329"
                                 << "_0 298"
                                 << "_0 273" << 100;
        QTest::newRow("three places") << "999 329"
                                      << "_9 298"
                                      << "_9 273" << 999;
        QTest::newRow("four places") << "1000 433"
                                     << "_0 298"
                                     << "_0 273" << 1000;
        QTest::newRow("last row") << "9998 433"
                                  << "_8 298"
                                  << "_8 273" << 9998;
        QTest::newRow("no reading") << "-- 225"
                                    << "-- 298"
                                    << "-- 273" << 9999;
        QTest::newRow("too large") << "unchanged"
                                   << "_0 298"
                                   << "_0 273" << 10000;
        QTest::newRow("negative") << "--- 329"
                                  << "-05 402"
                                  << "-- 273" << -5;
        QTest::newRow("smallest") << "--- 329"
                                  << "-_8 402"
                                  << "-- 273" << smallest;
    }

    void rows()
    {
        QFETCH(int, value);
        QTEST(written(pmRow(value)), "pm");
        QTEST(written(temperatureRow(value)), "temperature");
        QTEST(written(humidityRow(value)), "humidity");
    }

    void everyGlyphHasItsPicture()
    {
        for (Glyph digit = 0; digit <= 9; ++digit)
            QCOMPARE(QPixmap(glyphPicture(digit)).size(), QSize(121, 238));
        QCOMPARE(QPixmap(glyphPicture(glyphDash)).size(), QSize(121, 238));
    }

    void rowStandsCentred_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("frameX");
        QTest::addColumn<int>("firstX");
        QTest::addColumn<int>("lastRight");
        QTest::newRow("positive") << 23 << 182 << 182 << 480;
        QTest::newRow("negative") << -23 << 130 << 130 << 532;
        QTest::newRow("no reading") << 9999 << 182 << 218 << 443;
    }

    void rowStandsCentred()
    {
        QFETCH(int, value);
        TemperaturePage page;
        page.update_currentData(value);
        const QWidget *frame = page.findChild<QWidget *>("frame_value");
        int first = 1000;
        int right = 0;
        for (const QLabel *label : frame->findChildren<QLabel *>()) {
            if (label->isHidden())
                continue;
            first = std::min(first, frame->x() + label->x());
            right = std::max(right, frame->x() + label->x() + label->width());
        }
        QTEST(frame->x(), "frameX");
        QTEST(first, "firstX");
        QTEST(right, "lastRight");
    }

    void pagesAtStart()
    {
        const TemperaturePage temperature;
        QVERIFY(!place(temperature, "label_symbol")->isHidden());
        QCOMPARE(place(temperature, "label_units")->pixmap(Qt::ReturnByValue).toImage(),
                 QPixmap(glyphPicture(glyphDash)).toImage());
        const HumidityPage humidity;
        QCOMPARE(place(humidity, "label_symbol")->width(), 65);
        QCOMPARE(place(humidity, "label_tens")->pixmap(Qt::ReturnByValue).toImage(),
                 QPixmap(glyphPicture(4)).toImage());
    }

    void missingReadingTakesTheUnitForGood()
    {
        TemperaturePage temperature;
        HumidityPage humidity;
        MessageLog log;
        for (const int value : {9999, 21}) {
            temperature.update_currentData(value);
            humidity.update_currentData(value);
        }
        QCOMPARE(log.lines(), QStringList({"Error Temp number:9999", "Error Hum number:9999"}));
        QVERIFY(place(temperature, "label_symbol")->isHidden());
        QVERIFY(place(humidity, "label_symbol")->isHidden());
    }

    void digitWithoutPictureIsOneDebugLine()
    {
        TemperaturePage page;
        MessageLog log;
        page.update_currentData(104);
        QCOMPARE(log.lines().size(), 1);
        QVERIFY(place(page, "label_tens")->pixmap(Qt::ReturnByValue).isNull());
        QCOMPARE(place(page, "label_units")->pixmap(Qt::ReturnByValue).toImage(),
                 QPixmap(glyphPicture(4)).toImage());
    }
};

ZELL_TEST_MAIN(TestReadingPages)
#include "test_reading_pages.moc"
