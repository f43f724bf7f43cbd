#include "mainscreen/PmColorGenerator.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"

#include <cmath>

namespace {
struct Concentration
{
    const char *name;
    float pm;
    QString color;
};

struct Blend
{
    const char *name;
    float value;
    QString color;
};
} // namespace

class TestColorScale : public QObject
{
    Q_OBJECT

private slots:
    void concentrations_data()
    {
        addRows<Concentration>({{"none", 0, "#64dd17"},
                                {"most", 500, "#ba1650"},
                                {"below none", -9e9F, "#64dd17"},
                                {"above most", 9e9F, "#ba1650"},
                                {"no number", NAN, "#64dd17"},
                                {"second stop", 166.65F, "#ffeb3b"},
                                {"third stop", 333.3F, "#f44336"},
                                {"between stops", 83.325F, "#b1e429"},
                                {"middle", 250, "#f99638"}});
    }

    void concentrations()
    {
        QFETCH(Concentration, row);
        const MessageLog log;
        PmColorGenerator scale;
        QCOMPARE(log.lines().first(), QString("parse red 100 green 221 blue 23"));
        QCOMPARE(scale.colorOfPm(row.pm).name(), row.color);
    }

    void blends_data()
    {
        addRows<Blend>({{"between equal stops", 0.6F, "#804020"},
                        {"towards the end", 0.9F, "#33b2a5"},
                        {"below the first stop, from black", 0.25F, "#03f3f"},
                        {"twice the end", 2, "#01fffe"},
                        {"as far before the beginning", -1, "#ffff01"},
                        {"more than an int holds", 1e30F, "#ffff80"},
                        {"without end", INFINITY, "#ffff80"}});
    }

    void blends()
    {
        QFETCH(Blend, row);
        GradualValueToColor scale;
        scale.setColorAt(0.5F, 0x804020);
        scale.setColorAt(0.75F, 0x804020);
        scale.setEndColor(0x00FFFF);
        QCOMPARE(scale.colorAt(row.value), row.color);
    }

    void aReadInsertsTheEndsInBlack()
    {
        GradualValueToColor scale;
        scale.setColorAt(0.5F, 0x804020);
        QCOMPARE(scale.colorAt(0.25F), QString("#00"));
        QCOMPARE(scale.colorAt(0.25F), QString("#402010"));
    }

    void stopsAroundAValue()
    {
        const QMap<float, RGB> stops{{0.25F, {}}, {0.5F, {}}};
        QCOMPARE(findRangRgb(0.5F, stops), std::pair(0.25F, 0.5F));
        for (const float outside : {0.1F, 0.9F, 1.5F})
            QCOMPARE(findRangRgb(outside, stops), std::pair(0.0F, 1.0F));
    }
};

ZELL_TEST_MAIN(TestColorScale)
#include "test_color_scale.moc"
