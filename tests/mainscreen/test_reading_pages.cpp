#include "mainscreen/DigitRow.h"
#include "mainscreen/HumidityPage.h"
#include "mainscreen/PmAnimation.h"
#include "mainscreen/PmColorGenerator.h"
#include "mainscreen/TemperaturePage.h"
#include "testkit/CallSlot.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"

#include <QAbstractAnimation>
#include <QLabel>
#include <cmath>

namespace {
/// A value and how the pages write it: digits, "-" for a dash and "_" for an empty place.
struct Value
{
    const char *name;
    int value;
    QString pm;
    QString temperature;
    QString humidity;
};

QString written(const std::optional<DigitRow> &row)
{
    const QMap<Glyph, QString> signs{{glyphHidden, ""}, {glyphBlank, "_"}, {glyphDash, "-"}};
    QString text;
    for (const Glyph glyph : {row->minus, row->hundreds, row->tens, row->units})
        text += signs.value(glyph, QString::number(glyph));
    return text;
}

QImage pictureOf(Glyph glyph)
{
    return QPixmap(glyphPicture(glyph)).toImage();
}

QImage pictureIn(const QWidget &page, const char *label)
{
    return page.findChild<QLabel *>(label)->pixmap(Qt::ReturnByValue).toImage();
}
} // namespace

class TestReadingPages : public QObject
{
    Q_OBJECT

private slots:
    void placesOfAValue_data()
    {
        addRows<Value>({{"one digit", 5, "005", "05", "05"},
                        {"last of two digits", 99, "099", "99", "99"},
                        {"three digits", 100, "100", "100", "100"},
                        {"last of three digits", 999, "999", "999", "999"},
                        {"four digits", 1000, "1000", "_00", "_00"},
                        {"last credible one", 9998, "9998", "_98", "_98"},
                        {"missing", 9999, "--", "--", "--"},
                        {"below zero", -5, "00_", "-05", "0_"},
                        {"three digits below zero", -123, "___", "-123", "__"},
                        {"the smallest int", INT_MIN, "___", "-_48", "__"}});
    }

    void placesOfAValue()
    {
        QFETCH(Value, row);
        QCOMPARE(written(pmRow(row.value)), row.pm);
        QCOMPARE(written(temperatureRow(row.value)), row.temperature);
        QCOMPARE(written(humidityRow(row.value)), row.humidity);
        QVERIFY(!pmRow(10000));
    }

    void aMissingReadingTakesTheUnitAwayAndAHundredTakesRoom()
    {
        const TemperaturePage temperature;
        QCOMPARE(pictureIn(temperature, "label_tens"), pictureOf(glyphDash));
        QVERIFY(!temperature.findChild<QLabel *>("label_symbol")->isHidden());
        HumidityPage humidity;
        QCOMPARE(pictureIn(humidity, "label_tens"), pictureOf(4));
        QCOMPARE(pictureIn(humidity, "label_units"), pictureOf(0));
        const MessageLog log;
        for (const int reading : {9999, 21, -21})
            callSlot(&humidity, "update_currentData", Q_ARG(int, reading));
        QCOMPARE(log.lines(),
                 QStringList({"Error Hum number:9999",
                              "\"HumidityPage\" has no picture for a digit of its reading"}));
        QVERIFY(humidity.findChild<QLabel *>("label_symbol")->isHidden());
        QCOMPARE(pictureIn(humidity, "label_tens"), pictureOf(glyphBlank));
        callSlot(&humidity, "update_currentData", Q_ARG(int, 100));
        QCOMPARE(pictureIn(humidity, "label_hundreds"), pictureOf(1));
        QCOMPARE(humidity.findChild<QWidget *>("frame_value")->width(), 273 + 104);
    }

    void barSweepsOutAndBackAndOutUntilItIsStopped()
    {
        PmAnimation animation;
        animation.init();
        animation.startAnimation();
        auto *whole = animation.findChild<QAbstractAnimation *>({}, Qt::FindDirectChildrenOnly);
        const auto *bar = animation.findChild<QLabel *>("label_scanning");
        const QImage outward = pictureIn(animation, "label_scanning");
        QCOMPARE(bar->geometry(), QRect(118, 16, 19, 112));
        whole->setCurrentTime(2500);
        QCOMPARE(bar->geometry(), QRect(209, 16, 19, 112));
        whole->setCurrentTime(5001);
        QCOMPARE(bar->geometry(), QRect(299, 16, 19, 112));
        QVERIFY(pictureIn(animation, "label_scanning") != outward);
        whole->setCurrentTime(14999);
        QCOMPARE(bar->geometry(), QRect(299, 16, 19, 112));
        QCOMPARE(pictureIn(animation, "label_scanning"), outward);
        whole->setCurrentTime(15000);
        QCOMPARE(whole->state(), QAbstractAnimation::Running);
        QVERIFY(whole->currentTime() < 1000);
        animation.stopAnimation();
        QCOMPARE(whole->state(), QAbstractAnimation::Stopped);
    }

    void concentrations()
    {
        const MessageLog log;
        PmColorGenerator scale;
        QCOMPARE(log.lines().first(), QString("parse red 100 green 221 blue 23"));
        for (const float none : {0.F, -9e9F, NAN})
            QCOMPARE(scale.colorOfPm(none).name(), "#64dd17");
        QCOMPARE(scale.colorOfPm(83.325F).name(), "#b1e429");
        QCOMPARE(scale.colorOfPm(166.65F).name(), "#ffeb3b");
        QCOMPARE(scale.colorOfPm(333.3F).name(), "#f44336");
        for (const float most : {500.F, 9e9F})
            QCOMPARE(scale.colorOfPm(most).name(), "#ba1650");
    }

    void blends()
    {
        GradualValueToColor scale;
        scale.setColorAt(0.5F, 0x804020);
        // A read inserts the ends in black, where there are none.
        QCOMPARE(scale.colorAt(0.25F), "#00");
        QCOMPARE(scale.colorAt(0.25F), "#402010");
        scale = {};
        scale.setColorAt(0.5F, 0x804020);
        scale.setColorAt(0.75F, 0x804020);
        scale.setEndColor(0x00FFFF);
        QCOMPARE(scale.colorAt(0.25F), "#03f3f");
        QCOMPARE(scale.colorAt(0.6F), "#804020");
        QCOMPARE(scale.colorAt(0.9F), "#33b2a5");
        // Outside the ends the blend goes on as far as an int holds it.
        QCOMPARE(scale.colorAt(2), "#01fffe");
        QCOMPARE(scale.colorAt(-1), "#ffff01");
        for (const float beyond : {1e30F, INFINITY})
            QCOMPARE(scale.colorAt(beyond), "#ffff80");
    }
};

ZELL_TEST_MAIN(TestReadingPages)
#include "test_reading_pages.moc"
