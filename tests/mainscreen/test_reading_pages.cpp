#include "mainscreen/DigitRow.h"
#include "mainscreen/HumidityPage.h"
#include "mainscreen/TemperaturePage.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"

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

void update(QWidget &page, int value)
{
    QVERIFY(QMetaObject::invokeMethod(&page, "update_currentData", Q_ARG(int, value)));
}
} // namespace

class TestReadingPages : public QObject
{
    Q_OBJECT

private slots:
    void rows()
    {
        const std::tuple<int, const char *, const char *, const char *> rows[] = {
            {5, "005 329", "05 298", "05 273"},       {100, "100 329", "_0 298", "_0 273"},
            {999, "999 329", "_9 298", "_9 273"},     {1000, "1000 433", "_0 298", "_0 273"},
            {9998, "9998 433", "_8 298", "_8 273"},   {9999, "-- 225", "-- 298", "-- 273"},
            {10000, "unchanged", "_0 298", "_0 273"}, {-5, "00_ 329", "-05 402", "0_ 273"},
            {-230, "__0 329", "-_0 402", "_0 273"},   {INT_MIN, "___ 329", "-_8 402", "__ 273"}};
        for (const auto &[value, pm, temperature, humidity] : rows) {
            QCOMPARE(written(pmRow(value)), pm);
            QCOMPARE(written(temperatureRow(value)), temperature);
            QCOMPARE(written(humidityRow(value)), humidity);
        }
    }

    void pagesDrawTheRowCentred()
    {
        TemperaturePage page;
        const auto *frame = page.findChild<QWidget *>("frame_value");
        // No value before the first reading; what 9999 takes away does not come back.
        const std::tuple<int, const char *, int, int, Glyph, bool> steps[] = {
            {0, "label_tens", 182, 182, glyphDash, true},
            {-23, "label_minus", 130, 130, 3, true},
            {9999, "label_tens", 182, 218, glyphDash, false},
            {104, "label_units", 182, 322, 4, false}};
        for (const auto &[value, first, frameX, firstX, units, unit] : steps) {
            if (value != 0)
                update(page, value);
            QCOMPARE(frame->x(), frameX);
            QCOMPARE(frameX + place(page, first)->x(), firstX);
            QVERIFY2(shows(place(page, "label_units"), units), first);
            QCOMPARE(!place(page, "label_symbol")->isHidden(), unit);
        }
        QVERIFY(shows(place(page, "label_tens"), glyphBlank));
    }

    void humidityStartsAtFortyAndLogsAMissingReading()
    {
        HumidityPage page;
        QVERIFY(shows(place(page, "label_tens"), 4) && shows(place(page, "label_units"), 0));
        QCOMPARE(place(page, "label_symbol")->width(), 65);
        MessageLog log;
        update(page, 9999);
        update(page, 21);
        QCOMPARE(log.lines(), QStringList("Error Hum number:9999"));
        QVERIFY(place(page, "label_symbol")->isHidden());
        update(page, -21);
        QCOMPARE(log.lines().last(), "\"HumidityPage\" has no picture for a digit of its reading");
    }
};

ZELL_TEST_MAIN(TestReadingPages)
#include "test_reading_pages.moc"
