#include "history/ChartScale.h"
#include "history/DemonstrationSeries.h"
#include "history/NearestDot.h"
#include "tests/support/Environment.h"

#include <QRandomGenerator>
#include <limits>

using namespace ChartScale;

namespace {
constexpr int hour = 3600;
constexpr int day = 24 * hour;
// 21 July 2016, 16:00 local time.
constexpr int now = 1469088000;
constexpr int today = now - 16 * hour;

// The search as it is defined: a walk over all neighbours.
NearestDot walk(const QList<int> &times, const QList<int> &xs, LocalTime::Range days, float x)
{
    NearestDot dot;
    for (int i = 0; i + 1 < times.size(); ++i) {
        for (const int entry : {i, i + 1}) {
            if (!days.contains(times[entry]))
                continue;
            if (dot.first < 0)
                dot.first = entry;
            if (entry == dot.first && float(xs[entry]) > x)
                return {NearestDot::leftOfAll, dot.first, entry};
            dot.candidate = entry;
        }
        if (days.contains(times[i]) && days.contains(times[i + 1]) && x <= float(xs[i + 1])) {
            const bool left = x - float(xs[i]) < float(xs[i + 1]) - x;
            return {left ? NearestDot::leftNeighbour : NearestDot::rightNeighbour, dot.first,
                    left ? i : i + 1};
        }
    }
    return dot;
}

int walkTimes(const QList<int> &times, double time)
{
    for (int i = 0; i + 1 < times.size(); ++i) {
        if (times[i] > time)
            return times[i];
        if (time < times[i + 1])
            return time - times[i] < times[i + 1] - time ? times[i] : times[i + 1];
    }
    return -1;
}
} // namespace

class TestChartArithmetic : public QObject
{
    Q_OBJECT

private slots:
    void daysBeginAtLocalMidnight()
    {
        QCOMPARE(LocalTime::startOfDay(now), qint64(today));
        QCOMPARE(LocalTime::secondOfDay(now), qint64(16 * hour));
        QCOMPARE(LocalTime::startOfDay(today - 1), qint64(today - day));
        QCOMPARE(LocalTime::startOfDay(today), qint64(today));
        QCOMPARE(LocalTime::secondOfDay(-32400), qint64(82800));
    }

    void rangesAreWellRounded_data()
    {
        QTest::addColumn<float>("min");
        QTest::addColumn<float>("max");
        QTest::addColumn<ValueRange>("rounded");
        QTest::newRow("one multiple of ten") << 10.0F << 10.0F << ValueRange{0, 15};
        QTest::newRow("one multiple of five") << 25.0F << 25.0F << ValueRange{15, 30};
        QTest::newRow("zero") << 0.0F << 0.0F << ValueRange{-10, 5};
        QTest::newRow("one odd value") << 12.3F << 12.3F << ValueRange{5, 20};
        QTest::newRow("fits") << 50.0F << 110.0F << ValueRange{50, 110};
        QTest::newRow("negative") << -7.0F << -3.0F << ValueRange{-15, 0};
        QTest::newRow("ten missing") << 0.0F << 16.0F << ValueRange{-5, 25};
        QTest::newRow("five missing") << 1.0F << 24.0F << ValueRange{-5, 25};
        const float huge = std::numeric_limits<float>::max();
        QTest::newRow("beyond int") << -huge << huge << ValueRange{-2147483520.F, 2147483520.F};
    }

    void rangesAreWellRounded()
    {
        QFETCH(float, min);
        QFETCH(float, max);
        QFETCH(ValueRange, rounded);
        findPerfectValueRange(min, max, 3);
        QCOMPARE(min, rounded.min);
        QCOMPARE(max, rounded.max);
    }

    void todayHasARangeOfItsOwn()
    {
        const QMap<int, float> readings{
            {today - 1, 90}, {today, 20}, {today + day, 40}, {today + day + 1, 7}};
        const ValueRanges ranges = valueRangesOf(readings, today, 3);
        QCOMPARE(ranges.today, (ValueRange{15, 45}));
        QCOMPARE(ranges.all, (ValueRange{0, 90}));
        QCOMPARE(valueRangesOf(readings, today + 9 * day, 3).today, (ValueRange{0, 90}));
        QCOMPARE(valueRangesOf({}, today, 3).today, (ValueRange{0, 15}));
        QCOMPARE(valueRangesOf({}, today, 3).all, (ValueRange{0, 15}));
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
        QCOMPARE(ticks.size(), 25);
        QCOMPARE(ticks[1].labelX, 60);
        QVERIFY(!ticks[1].hasLine);
        QCOMPARE(ticks[10].labelX, 332);
        QVERIFY(ticks[10].hasLine);
        QCOMPARE(ticks[24].x, 774.0F);
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
    }

    void valuesWithoutSpanDivideNothing()
    {
        const Values flat = valuesOf(400, 60, 64, {2147483520.F, 2147483520.F});
        QCOMPARE(flat.toY(5), 336.0F);
        QCOMPARE(flat.toValue(100), 0.0F);
        QCOMPARE(truncated(std::numeric_limits<double>::quiet_NaN()), 0);
    }

    void searchesEqualTheWalk()
    {
        QCOMPARE(nearestTime({1000, 2000}, 1500), 2000);
        QRandomGenerator random(3);
        for (int round = 0; round < 300; ++round) {
            const auto scale = timesOf(random.bounded(120, 1500), 35, 80, 24);
            QMap<int, float> readings;
            for (int count = random.bounded(60); count > 0; --count)
                readings.insert(int(today + day - random.bounded(8 * day)), 0);
            const QList<int> times = readings.keys();
            QList<int> xs;
            for (const int time : times)
                xs.append(truncated(scale.toX(time)));
            const qint64 from = today - day * random.bounded(9);
            const LocalTime::Range days{from, from + (random.bounded(4) == 0 ? 7 * day : day)};
            for (float x = -3; x < 1500; x += 0.5F * float(1 + random.bounded(60)))
                QCOMPARE(nearestDot(times, xs, days, x),
                         times.size() < 2 ? NearestDot() : walk(times, xs, days, x));
            for (qint64 time = today - 8 * day; time < today + 2 * day;
                 time += random.bounded(1, 40000))
                QCOMPARE(nearestTime(times, float(time)), walkTimes(times, double(float(time))));
        }
    }

    void demonstrationSeriesOfFullHours()
    {
        const auto full = demonstrationSeries(now, 2, [] { return 1; });
        QCOMPARE(full.size(), 568);
        QCOMPARE(full.firstKey(), today - 6 * day + 12 * hour);
        QCOMPARE(full.lastKey(), today + 9 * hour + 2700);
        QCOMPARE(full.first(), 108.913864F);
        QCOMPARE(full.last(), 67.742337F);
        const auto [low, high] = std::minmax_element(full.cbegin(), full.cend());
        QVERIFY(*low >= 50 && *high <= 110);

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
