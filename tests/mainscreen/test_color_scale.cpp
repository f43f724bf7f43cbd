#include "mainscreen/PmColorGenerator.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"

#include <cmath>

class TestColorScale : public QObject
{
    Q_OBJECT

private slots:
    void concentrations()
    {
        const MessageLog log;
        PmColorGenerator scale;
        QCOMPARE(log.lines().first(), QString("parse red 100 green 221 blue 23"));
        // The ends, what lies beyond them and is no number, the stops, half-way between stops.
        const std::pair<float, const char *> colors[] = {
            {0, "#64dd17"},      {500, "#ba1650"},     {-9e9F, "#64dd17"},
            {9e9F, "#ba1650"},   {NAN, "#64dd17"},     {166.65F, "#ffeb3b"},
            {333.3F, "#f44336"}, {83.325F, "#b1e429"}, {250, "#f99638"}};
        for (const auto &[pm, color] : colors)
            QCOMPARE(scale.colorOfPm(pm).name(), QString(color));
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
        QCOMPARE(scale.colorAt(2.0F), QString("#01fffe"));
        QCOMPARE(scale.colorAt(-1.0F), QString("#ffff01"));
        QCOMPARE(scale.colorAt(9e30F).size(), 7);

        const QMap<float, RGB> stops{{0.25F, {}}, {0.5F, {}}};
        QCOMPARE(findRangRgb(0.5F, stops), std::pair(0.25F, 0.5F));
        for (const float outside : {0.1F, 0.9F, 1.5F})
            QCOMPARE(findRangRgb(outside, stops), std::pair(0.0F, 1.0F));
    }
};

ZELL_TEST_MAIN(TestColorScale)
#include "test_color_scale.moc"
