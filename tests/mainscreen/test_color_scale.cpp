#include "mainscreen/PmColorGenerator.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"

#include <limits>

class TestColorScale : public QObject
{
    Q_OBJECT

private slots:
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
        QTest::newRow("above the scale") << 1e30F << "#ba1650";
        QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << "#64dd17";
    }

    void concentrations()
    {
        QFETCH(float, pm);
        const MessageLog log;
        QTEST(PmColorGenerator().colorOfPm(pm).name(), "color");
        QVERIFY(log.contains("parse red 100 green 221 blue 23"));
    }

    void scalesOfOneOwn()
    {
        GradualValueToColor scale;
        QCOMPARE(scale.colorAt(0.5F), QString("#00"));
        scale.setColorAt(0.5F, 0x804020);
        scale.setColorAt(0.75F, 0x804020);
        QCOMPARE(scale.colorAt(0.6F), QString("#804020"));
        QCOMPARE(scale.colorAt(0.9F), QString("#33190c"));
        scale.setEndColor(0x00FFFF);
        QCOMPARE(scale.colorAt(2.0F), QString("#0ffff"));
    }

    void aStopEndsItsInterval()
    {
        const QMap<float, RGB> stops{{0.25F, {}}, {0.5F, {}}};
        QCOMPARE(findRangRgb(0.5F, stops), std::pair(0.25F, 0.5F));
        for (const float outside : {0.1F, 0.9F, 1.5F})
            QCOMPARE(findRangRgb(outside, stops), std::pair(0.0F, 1.0F));
    }
};

ZELL_TEST_MAIN(TestColorScale)
#include "test_color_scale.moc"
