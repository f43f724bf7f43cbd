#include "benchmarks/settings/Visitor.h"
#include "benchmarks/support/Heap.h"
#include "benchmarks/support/Row.h"

#include <algorithm>

namespace {
const Way ways[] = {
    {.name = "SetWifiPage", .taps = {"option_setWifi"}},
    {.name = "adjustLight", .taps = {"option_adjustLight"}},
    {.name = "SetTimePage", .taps = {"option_setTime"}},
    {.name = "DateTimePage", .taps = {"option_setTime", "button_dateTime"}, .hasWheels = true},
    {.name = "DateTimePage_12h",
     .taps = {"option_setTime", "checkBox_24Hours", "button_dateTime"},
     .hasWheels = true},
    {.name = "TimeZonePage", .taps = {"option_setTime", "button_timeZone"}},
    {.name = "nightModePage", .taps = {"option_frame_nightPattern"}},
    {.name = "timePage",
     .taps = {"option_frame_nightPattern", "button_startTime"},
     .hasWheels = true},
    {.name = "setLanguagePage", .taps = {"option_frame_language"}},
    {.name = "Factory_Reset", .taps = {"option_resetFactory"}},
    {.name = "FactoryReset_Confirm",
     .taps = {"option_resetFactory", "button_confirm"},
     .back = "button_cancel"},
    {.name = "connectApp", .taps = {"option_connectApp"}},
    {.name = "tryConnectApp", .taps = {"option_connectApp", "button_connectApp"}},
    {.name = "setLocation", .taps = {"option_setLocation"}},
    {.name = "searchLocation", .taps = {"option_setLocation", "button_search"}},
    {.name = "locationResult", .taps = {"option_setLocation", "button_search", "button_enter"}},
    {.name = "updateFirmware", .taps = {"option_updateFirmware"}},
    {.name = "retryFirmware",
     .taps = {"option_updateFirmware", "button_checkUpdate", "button_update"},
     .opensAtOnce = false},
};

// From the tap to the picture.
void openPage(Row &row, const Way &way)
{
    Visitor visitor(way);
    visitor.approach();
    Row::runLoop([&] { visitor.open(); });
    bool isWhole = true;
    if (way.hasWheels)
        row.includeQuick();
    row.turns([&] { visitor.open(); },
              [&] {
                  isWhole = visitor.wheelsAreOnTheScreen() && isWhole;
                  visitor.leave();
                  visitor.approach();
              });
    if (!isWhole)
        row.fail("a wheel is missing");
}

// What each further visit adds to the memory in use, in KiB: the bare frames of the pages on its
// way. What is built once and kept belongs to no visit, nor does the whole page that a holder
// keeps.
double memoryOfAVisit(const Way &way)
{
    constexpr int visits = 50;
    Visitor visitor(way);
    const auto visit = [&visitor] {
        visitor.approach();
        visitor.open();
        visitor.leave();
    };
    visit();
    visit();
    const double before = kibibytesInUse();
    for (int further = 0; further < visits; ++further)
        visit();
    return (kibibytesInUse() - before) / visits;
}

// Of the page that adds most.
void memoryOfVisits(Row &row)
{
    double most = 0;
    for (const Way &way : ways)
        most = std::max(most, memoryOfAVisit(way));
    row.figure(most);
}

std::vector<Rows::Entry> entries()
{
    std::vector<Rows::Entry> rows{
        {.name = "a visit adds KiB", .measure = memoryOfVisits, .isPaced = false}};
    for (const Way &way : ways) {
        if (way.opensAtOnce) {
            rows.push_back({.name = std::string("opens ") + way.name,
                            .measure = [way](Row &row) { openPage(row, way); },
                            .samples = 30});
        }
    }
    return rows;
}

const Rows rows(entries());
} // namespace
