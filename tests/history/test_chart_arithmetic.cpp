#include "history/ChartScale.h"
#include "history/DemonstrationSeries.h"
#include "history/NearestDot.h"
#include "tests/support/Environment.h"

#include <QRandomGenerator>
#include <limits>

namespace {
constexpr qint64 hour = LocalTime::secondsPerHour;
constexpr qint64 day = LocalTime::secondsPerDay;
// 21 July 2016, 16:00 local time.
constexpr qint64 now = 1469088000;
constexpr qint64 today = now - 16 * hour;

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
        QCOMPARE(LocalTime::startOfDay(now), today);
        QCOMPARE(LocalTime::secondOfDay(now), 16 * hour);
        QCOMPARE(LocalTime::startOfDay(today - 1), today - day);
        QCOMPARE(LocalTime::startOfDay(today), today);
        QCOMPARE(LocalTime::secondOfDay(-9 * hour), 23 * hour);
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
        const QMap<int, float> readings{{int(today - 1), 90},
                                        {int(today), 20},
                                        {int(today + day), 40},
                                        {int(today + day + 1), 7}};
        const ValueRanges ranges = valueRangesOf(readings, today, 3);
        QCOMPARE(ranges.today, (ValueRange{15, 45}));
        QCOMPARE(ranges.all, (ValueRange{0, 90}));
        QCOMPARE(valueRangesOf(readings, today + 9 * day, 3).today, (ValueRange{0, 90}));
        QCOMPARE(valueRangesOf({}, today, 3).today, (ValueRange{0, 15}));
        QCOMPARE(valueRangesOf({}, today, 3).all, (ValueRange{0, 15}));
    }

    void axesOfTheScreen()
    {
        const auto values = ChartScale::valuesOf(400, 60, 64, {50, 110});
        QCOMPARE(values.bottom, 336.0F);
        QCOMPARE(values.top, 60.0F);
        QCOMPARE(values.scale, -4.6F);
        QCOMPARE(values.toY(65), 267.0F);
        QCOMPARE(values.toValue(336), (60 - values.offset) / values.scale);
        QList<std::pair<qint64, int>> labels;
        for (const auto &tick : ChartScale::valueTicks(values, {50, 110}, 3))
            labels.append({tick.value, tick.y});
        QCOMPARE(labels,
                 (QList<std::pair<qint64, int>>{{50, 336}, {70, 244}, {90, 152}, {110, 60}}));

        const auto times = ChartScale::timesOf(854, 35, 80, 24);
        QCOMPARE(times.pxPerHour, 739.0F / 24);
        QCOMPARE(times.toX(today), 35.0F);
        QCOMPARE(times.toX(today + 12 * hour), 404.5F);
        QCOMPARE(times.toX(today - 3 * day + 12 * hour), 404.5F);
        const auto ticks = ChartScale::hourTicks(times, 854, 80, 24);
        QCOMPARE(ticks.size(), 25);
        QCOMPARE(ticks[1].labelX, 60);
        QVERIFY(!ticks[1].hasLine);
        QCOMPARE(ticks[10].labelX, 332);
        QVERIFY(ticks[10].hasLine);
        QCOMPARE(ticks[24].x, 774.0F);
        QCOMPARE(ticks[24].labelX, 764);
    }

    void axesEndAtEverySize_data()
    {
        QTest::addColumn<int>("height");
        QTest::addColumn<qsizetype>("labels");
        for (const auto &[height, labels] : std::initializer_list<std::pair<int, int>>{
                 {1, 0}, {64, 0}, {123, 0}, {124, 1}, {126, 1}, {127, 4}, {129, 6}, {400, 4}})
            QTest::addRow("%d high", height) << height << qsizetype(labels);
    }

    void axesEndAtEverySize()
    {
        QFETCH(int, height);
        const auto values = ChartScale::valuesOf(height, 60, 64, {0, 15});
        QTEST(ChartScale::valueTicks(values, {0, 15}, 3).size(), "labels");
        QCOMPARE(ChartScale::valueTicks(values, {0, 15}, 0).size(), height < 124   ? 0
                                                                    : height < 125 ? 1
                                                                                   : 2);
        QVERIFY(
            ChartScale::hourTicks(ChartScale::timesOf(height, 120, 9, 24), height, 9, 24).size() ==
            (height > 129 ? 25 : 0));
        QVERIFY(ChartScale::hourTicks(ChartScale::timesOf(854, 35, 80, 0), 854, 80, 0).isEmpty());
    }

    void valuesWithoutSpanDivideNothing()
    {
        const auto flat = ChartScale::valuesOf(400, 60, 64, {2147483520.F, 2147483520.F});
        QCOMPARE(flat.toY(5), 336.0F);
        QCOMPARE(flat.toValue(100), 0.0F);
        QCOMPARE(ChartScale::truncated(-1e30), -16777216);
        QCOMPARE(ChartScale::truncated(std::numeric_limits<double>::quiet_NaN()), 0);
        QCOMPARE(ChartScale::truncated(-3.9), -3);
    }

    void nearestDotOfADay_data()
    {
        QTest::addColumn<float>("x");
        QTest::addColumn<int>("daysAgo");
        QTest::addColumn<NearestDot>("dot");
        QTest::newRow("left of all") << 99.0F << 0 << NearestDot{1, 2, 2};
        QTest::newRow("on the first") << 100.0F << 0 << NearestDot{2, 2, 2};
        QTest::newRow("nearer to the left") << 109.0F << 0 << NearestDot{2, 2, 2};
        QTest::newRow("a tie") << 110.0F << 0 << NearestDot{3, 2, 3};
        QTest::newRow("on the last") << 140.0F << 0 << NearestDot{3, 2, 4};
        QTest::newRow("right of all") << 900.0F << 0 << NearestDot{4, 2, 4};
        QTest::newRow("another day") << 110.0F << 1 << NearestDot{2, 0, 0};
        QTest::newRow("no reading that day") << 110.0F << 2 << NearestDot{4, -1, -1};
    }

    void nearestDotOfADay()
    {
        QFETCH(float, x);
        QFETCH(int, daysAgo);
        const QList<int> times{int(today - day + hour), int(today - day + 9 * hour),
                               int(today + hour), int(today + 2 * hour), int(today + 3 * hour)};
        const LocalTime::Range days{today - daysAgo * day, today - daysAgo * day + day};
        QTEST(nearestDot(times, {100, 500, 100, 120, 140}, days, x), "dot");
        QCOMPARE(nearestDot({times[0]}, {100}, {0, now + day}, x), NearestDot());
    }

    void searchesEqualTheWalk()
    {
        QRandomGenerator random(3);
        for (int round = 0; round < 300; ++round) {
            const auto scale = ChartScale::timesOf(random.bounded(120, 1500), 35, 80, 24);
            QMap<int, float> readings;
            for (int count = random.bounded(60); count > 0; --count)
                readings.insert(int(today + day - random.bounded(int(8 * day))), 0);
            const QList<int> times = readings.keys();
            QList<int> xs;
            for (const int time : times)
                xs.append(ChartScale::truncated(scale.toX(time)));
            const qint64 from = today - day * random.bounded(9);
            const LocalTime::Range days{from, from + day * (random.bounded(4) == 0 ? 7 : 1)};
            for (float x = -3; x < 1500; x += 0.5F * float(1 + random.bounded(60)))
                QCOMPARE(nearestDot(times, xs, days, x),
                         times.size() < 2 ? NearestDot() : walk(times, xs, days, x));
            for (qint64 time = today - 8 * day; time < today + 2 * day;
                 time += random.bounded(1, 40000))
                QCOMPARE(nearestTime(times, float(time)), walkTimes(times, double(float(time))));
        }
    }

    void nearestTimeOfNeighbours_data()
    {
        QTest::addColumn<float>("time");
        QTest::addColumn<int>("found");
        QTest::newRow("before all") << 1.0F << 1000;
        QTest::newRow("nearer to the earlier") << 1499.0F << 1000;
        QTest::newRow("a tie") << 1500.0F << 2000;
        QTest::newRow("on the last") << 2000.0F << -1;
    }

    void nearestTimeOfNeighbours()
    {
        QFETCH(float, time);
        QTEST(nearestTime({1000, 2000}, time), "found");
        QCOMPARE(nearestTime({1000}, time), -1);
    }

    void demonstrationSeriesOfFullHours()
    {
        const auto full = demonstrationSeries(now, 2, [] { return 1; });
        QCOMPARE(full.size(), 568);
        QCOMPARE(full.firstKey(), int(today - 6 * day + 12 * hour));
        QCOMPARE(full.lastKey(), int(today + 9 * hour + 2700));
        QCOMPARE(full.first(), 108.913864F);
        QCOMPARE(full.last(), 67.742337F);
        const auto [low, high] = std::minmax_element(full.cbegin(), full.cend());
        QVERIFY(*low >= 50 && *high <= 110);

        int draws = 0;
        const auto thinned = demonstrationSeries(now, 1, [&] { return draws++; });
        QCOMPARE(draws, 142);
        QCOMPARE(thinned.size(), 94 * 4);
        QVERIFY(!thinned.contains(full.firstKey()));
        QVERIFY(thinned.contains(full.firstKey() + int(hour)));
        QVERIFY(demonstrationSeries(qint64(1) << 40, 2, [] { return 1; }).isEmpty());
    }
};

ZELL_TEST_MAIN(TestChartArithmetic)
#include "test_chart_arithmetic.moc"
