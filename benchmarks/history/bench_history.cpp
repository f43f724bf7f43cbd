#include "benchmarks/support/Screen.h"
#include "benchmarks/support/Yardstick.h"
#include "history/Blackboard.h"
#include "history/DemonstrationSeries.h"
#include "history/HistoryPage.h"

#include <QTabWidget>

namespace {
// 21 July 2016, 16:00 local time.
constexpr qint64 now = 1469088000;
constexpr int minutesOfAWeek = 7 * 24 * 60;

// The page as it is on the device: seven days, a sample in every quarter of an hour.
class PageOfSevenDays
{
public:
    PageOfSevenDays()
        : page(nullptr, [] { return now; })
        , chart(page.findChild<Blackboard *>())
    {
        page.findChild<QTabWidget *>()->setCurrentIndex(0);
        // Yesterday has a dot everywhere, so that every move finds another one.
        chart->day = 1;
        change();
        page.show();
        paint();
    }

    void change() { chart->setValueMap(series, 2); }

    void moveFinger()
    {
        // Back and forth over the whole width in a second at 40 events a second, five dots a step.
        constexpr int left = 90;
        constexpr int width = 680;
        step = (step + 37) % (2 * width);
        moveMouse(&page, {left + std::abs(step - width), 300});
        paint();
    }

    void press() { pressMouse(&page, {400, 300}); }
    static void paint()
    {
        // The read-out moves while the chart is painted and is itself painted one round later.
        for (int round = 0; round < 3; ++round)
            repaint();
    }

private:
    QMap<int, float> series = demonstrationSeries(now, 2, [] { return 1; });
    HistoryPage page;
    Blackboard *chart;
    int step = 0;
};

void fingerMove(benchmark::State &state)
{
    PageOfSevenDays page;
    page.press();
    PageOfSevenDays::paint();
    Yardstick::measure(state, 6, [&] { page.moveFinger(); });
}
BENCHMARK(fingerMove)->UseManualTime();

void firstPaintAfterAChange(benchmark::State &state)
{
    PageOfSevenDays page;
    Yardstick::measure(state, 60, [&] {
        page.change();
        PageOfSevenDays::paint();
    });
}
BENCHMARK(firstPaintAfterAChange)->UseManualTime();

void nearestDotOf10080(benchmark::State &state)
{
    const qint64 start = LocalTime::startOfDay(now) - 6 * LocalTime::secondsPerDay;
    const auto scale = ChartScale::timesOf(854, 80, 80, 24);
    QList<int> times;
    QList<int> xs;
    for (int minute = 0; minute < minutesOfAWeek; ++minute) {
        times.append(int(start + qint64(60) * minute));
        xs.append(ChartScale::truncated(scale.toX(times.last())));
    }
    // A finger right of all dots passes every one of the week.
    const LocalTime::Range week{start, start + 7 * LocalTime::secondsPerDay};
    float x = 850;
    Yardstick::measure(state, 1, [&] {
        benchmark::DoNotOptimize(x);
        benchmark::DoNotOptimize(nearestDot(times, xs, week, x));
    });
}
BENCHMARK(nearestDotOf10080)->UseManualTime();
} // namespace
