#include "history/ChartScale.h"
#include "history/DemonstrationSeries.h"
#include "history/NearestDot.h"
#include "testkit/Environment.h"

#include <QRandomGenerator>
#include <limits>

using namespace ChartScale;
using Span = std::pair<float, float>;

namespace {
constexpr int hour = 3600;
constexpr int day = 24 * hour;
// 21 July 2016, 16:00 local time.
constexpr int now = 1469088000;
constexpr int today = now - 16 * hour;

// The search as it is defined: a walk over all dots of the days.
NearestDot walk(const QList<int> &times, const QList<int> &xs, LocalTime::Range days, float x)
{
    NearestDot dot;
    for (int i = 0; times.size() > 1 && i < times.size(); ++i) {
        if (!days.contains(times[i]))
            continue;
        if (dot.first < 0)
            dot.first = i;
        if (i == dot.first && x < float(xs[i]))
            return {NearestDot::leftOfAll, i, i};
        if (i > dot.first && x <= float(xs[i]))
            return x - float(xs[i - 1]) < float(xs[i]) - x
                       ? NearestDot{NearestDot::leftNeighbour, dot.first, i - 1}
                       : NearestDot{NearestDot::rightNeighbour, dot.first, i};
        dot.candidate = i;
    }
    return dot;
}
} // namespace

class TestChartArithmetic : public QObject
{
    Q_OBJECT

private slots:
    void rangesAreWellRounded()
    {
        // One value, a span that fits, ten and five missing, beyond int.
        float ranges[][4] = {
            {10, 10, 0, 15},       {25, 25, 15, 30},   {0, 0, -10, 5},
            {12.3F, 12.3F, 5, 20}, {50, 110, 50, 110}, {-7, -3, -15, 0},
            {0, 16, -5, 25},       {1, 24, -5, 25},    {-3e38F, 3e38F, -2147483520, 2147483520}};
        for (auto &[min, max, roundedMin, roundedMax] : ranges) {
            findPerfectValueRange(min, max, 3);
            QCOMPARE(Span(min, max), Span(roundedMin, roundedMax));
        }
    }

    void todayHasARangeOfItsOwn()
    {
        QCOMPARE(LocalTime::startOfDay(today), qint64(today));
        QCOMPARE(LocalTime::startOfDay(today - 1), qint64(today - day));
        QCOMPARE(LocalTime::secondOfDay(-32400), qint64(82800));
        const QMap<int, float> readings{
            {today - 1, 90}, {today, 20}, {today + day, 40}, {today + day + 1, 7}};
        const auto [ofToday, ofAll] = valueRangesOf(readings, today, 3);
        QCOMPARE(ofToday, (ValueRange{15, 45}));
        QCOMPARE(ofAll, (ValueRange{0, 90}));
        QCOMPARE(valueRangesOf(readings, today + 9 * day, 3).today, ofAll);
        QCOMPARE(valueRangesOf({}, today, 3).today, (ValueRange{0, 15}));
    }

    void axesOfTheScreen()
    {
        const Values values = valuesOf(400, 60, 64, {50, 110});
        QCOMPARE(values.toY(65), 267.0F);
        QList<std::pair<qint64, int>> labels;
        for (const ValueTick &tick : valueTicks(values, {50, 110}, 3))
            labels.append({tick.value, tick.y});
        const decltype(labels) expected{{50, 336}, {70, 244}, {90, 152}, {110, 60}};
        QCOMPARE(labels, expected);

        const Times times = timesOf(854, 35, 80, 24);
        QCOMPARE(times.toX(today), 35.0F);
        QCOMPARE(times.toX(today - 3 * day + 12 * hour), 404.5F);
        const auto ticks = hourTicks(times, 854, 80, 24);
        QVERIFY(ticks[1].labelX == 60 && !ticks[1].hasLine);
        QVERIFY(ticks[10].labelX == 332 && ticks[10].hasLine);
        QCOMPARE(ticks.last().x, 774.0F);
    }

    void axesEndAtEverySize()
    {
        const QMap<int, int> labelsOfSize{{1, 0},   {64, 0},  {123, 0}, {124, 1},
                                          {126, 1}, {127, 4}, {129, 6}, {400, 4}};
        for (auto size = labelsOfSize.cbegin(); size != labelsOfSize.cend(); ++size) {
            const Values values = valuesOf(size.key(), 60, 64, {0, 15});
            QCOMPARE(valueTicks(values, {0, 15}, 3).size(), size.value());
            const auto hours = hourTicks(timesOf(size.key(), 120, 9, 24), size.key(), 9, 24);
            QCOMPARE(hours.size(), size.key() > 129 ? 25 : 0);
        }
        QVERIFY(hourTicks(timesOf(854, 35, 80, 0), 854, 80, 0).isEmpty());
        const Values flat = valuesOf(400, 60, 64, {2147483520.F, 2147483520.F});
        QCOMPARE(flat.toY(5), 336.0F);
        QCOMPARE(flat.toValue(100), 0.0F);
        QCOMPARE(truncated(std::numeric_limits<double>::quiet_NaN()), 0);
    }

    void nearestTimes()
    {
        // Times that a float rounds: to 128, 896 and 1792.
        const QList<int> times{today + 150, today + 900, today + 1850};
        const QMap<int, int> nearest{{0, 150}, {150, 150}, {384, 150}, {512, 900}, {1850, -1}};
        for (auto time = nearest.cbegin(); time != nearest.cend(); ++time)
            QCOMPARE(nearestTime(times, float(today + time.key())),
                     time.value() < 0 ? -1 : today + time.value());
        QCOMPARE(nearestTime({today}, 0), -1);
    }

    void nearestDotEqualsTheWalk()
    {
        QRandomGenerator random(3);
        for (int round = 0; round < 300; ++round) {
            const auto scale = timesOf(random.bounded(120, 1500), 35, 80, 24);
            QList<int> times(random.bounded(60));
            for (int &time : times)
                time = int(today + day - random.bounded(8 * day));
            std::sort(times.begin(), times.end());
            QList<int> xs;
            for (const int time : times)
                xs.append(truncated(scale.toX(time)));
            const qint64 from = today - day * random.bounded(9);
            const LocalTime::Range days{from, from + (random.bounded(4) == 0 ? 7 * day : day)};
            for (float x = -3; x < 1500; x += 0.5F * float(1 + random.bounded(60)))
                QCOMPARE(nearestDot(times, xs, days, x), walk(times, xs, days, x));
        }
    }

    void demonstrationSeriesOfFullHours()
    {
        const auto full = demonstrationSeries(now, 2, [] { return 1; });
        QCOMPARE(full.size(), 568);
        QCOMPARE(full.firstKey(), today - 6 * day + 12 * hour);
        QCOMPARE(full.lastKey(), today + 9 * hour + 2700);
        QCOMPARE(Span(full.first(), full.last()), Span(108.913864F, 67.742337F));

        int draws = 0;
        const auto thinned = demonstrationSeries(now, 1, [&] { return draws++; });
        QCOMPARE(draws, 142);
        QCOMPARE(thinned.size(), 94 * 4);
        QCOMPARE(thinned.firstKey(), full.firstKey() + hour);
        QVERIFY(demonstrationSeries(qint64(1) << 40, 2, [] { return 1; }).isEmpty());
    }
};

ZELL_TEST_MAIN(TestChartArithmetic)
#include "test_chart_arithmetic.moc"
