#include "benchmarks/support/Row.h"
#include "benchmarks/support/Screen.h"
#include "history/Blackboard.h"
#include "history/DemonstrationSeries.h"

#include <cstdlib>
#include <ctime>

namespace {
constexpr QPoint tabOf7Days(680, 40);
constexpr QPoint tabOf24Hours(780, 40);

// The page with seven days, a sample in every quarter of an hour.
struct SevenDays
{
    SevenDays()
    {
        screen.open(QStringLiteral("button_history"));
        Row::runLoop([this] { screen.click(tabOf7Days); });
        chart = Screen::visible<Blackboard>();
        chart->setValueMap(demonstrationSeries(std::time(nullptr), 2, [] { return 1; }), 2);
        screen.open(QStringLiteral("radio_day1"));
    }

    Screen screen;
    Blackboard *chart = nullptr;
};

void finger(Row &row)
{
    // Back and forth over the whole width, some five dots a step.
    constexpr int left = 90;
    constexpr int width = 680;
    int step = 0;
    const SevenDays page;
    page.screen.press({left, 300});
    row.turns([&] {
        step = (step + 37) % (2 * width);
        page.screen.move({left + std::abs(step - width), 300});
    });
}

void anotherDay(Row &row)
{
    const SevenDays page;
    const QPoint days[] = {page.screen.placeOf(QStringLiteral("radio_day1")),
                           page.screen.placeOf(QStringLiteral("radio_day2"))};
    std::size_t day = 0;
    row.turns([&] { page.screen.click(days[++day % 2]); });
}

void tab(Row &row)
{
    const SevenDays page;
    row.turns([&] { page.screen.click(tabOf7Days); }, [&] { page.screen.click(tabOf24Hours); });
}

// A reading in every minute of the week.
void chartOf10080(Row &row)
{
    constexpr int minutesOfAWeek = 7 * 24 * 60;
    const SevenDays page;
    const int now = int(std::time(nullptr));
    QMap<int, float> readings;
    for (int minute = 0; minute < minutesOfAWeek; ++minute)
        readings.insert(now - 60 * minute, 20 + float(minute % 97) / 10);
    row.turns([&] { page.chart->setValueMap(readings, 2); });
}

const Rows rows({
    {.name = "history slides in, first visit",
     .measure = [](Row &row) { firstSlideIn(row, QStringLiteral("button_history")); },
     .samples = 75},
    {.name = "history slides in, later",
     .measure = [](Row &row) { laterSlideIn(row, QStringLiteral("button_history")); }},
    {.name = "finger on the 7-day chart", .measure = finger},
    {.name = "another day", .measure = anotherDay, .samples = 60},
    {.name = "tab to 7 days", .measure = tab, .samples = 60},
    {.name = "chart of 10080 readings", .measure = chartOf10080, .samples = 20},
});
} // namespace
