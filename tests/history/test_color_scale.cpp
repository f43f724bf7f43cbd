#include "mainscreen/PmColorGenerator.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"

#include <limits>

namespace {
constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
} // namespace

class TestColorScale : public QObject
{
    Q_OBJECT

private slots:
    void bytesOfAColor()
    {
        const MessageLog log;
        int r = -1;
        int g = -1;
        int b = -1;
        GradualValueToColor::parseHexToRGB(0x64DD17, r, g, b);
        QCOMPARE(QList<int>({r, g, b}), QList<int>({100, 221, 23}));
        QVERIFY(log.contains("parse red 100 green 221 blue 23"));
        GradualValueToColor::parseHexToRGB(0x0000FF, r, g, b);
        QCOMPARE(QList<int>({r, g, b}), QList<int>({0, 0, 255}));
    }

    void concentrations_data()
    {
        QTest::addColumn<float>("pm");
        QTest::addColumn<QString>("color");
        QTest::newRow("clean") << 0.0F << "#64dd17";
        QTest::newRow("below the scale") << -1e30F << "#64dd17";
        QTest::newRow("half-way to yellow") << 83.325F << "#b1e429";
        QTest::newRow("yellow") << 166.65F << "#ffeb3b";
        QTest::newRow("towards red") << 250.0F << "#f99638";
        QTest::newRow("red") << 333.3F << "#f44336";
        QTest::newRow("end") << 500.0F << "#ba1650";
        QTest::newRow("above the scale") << infinity << "#ba1650";
        QTest::newRow("no number") << notANumber << "#64dd17";
    }

    void concentrations()
    {
        QFETCH(float, pm);
        QFETCH(QString, color);
        QCOMPARE(PmColorGenerator().colorOfPm(pm).name(), color);
    }

    void scalesOfOneOwn()
    {
        GradualValueToColor middleOnly;
        QCOMPARE(middleOnly.colorAt(0.5F), QString("#00"));
        middleOnly.setColorAt(0.5F, 0x804020);
        middleOnly.setColorAt(0.75F, 0x804020);
        QCOMPARE(middleOnly.colorAt(0.6F), QString("#804020"));
        QCOMPARE(middleOnly.colorAt(0.9F), QString("#33190c"));
        QCOMPARE(middleOnly.colorAt(0.25F), QString("#402010"));

        GradualValueToColor dark;
        dark.setStartColor(0);
        dark.setEndColor(0x00FFFF);
        QCOMPARE(dark.colorAt(0.5F), QString("#07f7f"));
        dark.setEndColor(0xFFFFFF);
        QCOMPARE(dark.colorAt(2.0F), QString("#ffffff"));
    }

    void intervals_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<float>("lower");
        QTest::addColumn<float>("upper");
        QTest::newRow("inside") << 0.3F << 0.25F << 0.5F;
        QTest::newRow("a stop ends its interval") << 0.5F << 0.25F << 0.5F;
        QTest::newRow("before the first stop") << 0.1F << 0.0F << 1.0F;
        QTest::newRow("after the last stop") << 0.9F << 0.0F << 1.0F;
        QTest::newRow("outside") << 1.5F << 0.0F << 1.0F;
    }

    void intervals()
    {
        QFETCH(float, value);
        QFETCH(float, lower);
        QFETCH(float, upper);
        const QMap<float, RGB> stops{{0.25F, {}}, {0.5F, {}}};
        QCOMPARE(findRangRgb(value, stops), std::pair(lower, upper));
    }
};

ZELL_TEST_MAIN(TestColorScale)
#include "test_color_scale.moc"
