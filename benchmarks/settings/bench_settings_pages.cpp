#include "benchmarks/settings/Visitor.h"
#include "benchmarks/support/Heap.h"
#include "benchmarks/support/Yardstick.h"

namespace {
// From tap to picture in 16 ms, a period of the screen: 290 copies of a frame of 55 us each on the
// machine that the limit was set on.
constexpr double onePeriod = 290;
// What each further visit may add to the memory in use, in KiB: the bare frames of the pages on its
// way. The device could bear 64, a whole page with wheels takes hundreds.
constexpr double visitBudget = 12;

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

// The first page with wheels in the life of the program, if nothing has run before.
void opensFirst(benchmark::State &state)
{
    Visitor visitor({.name = "", .taps = {"option_setTime", "button_dateTime"}, .hasWheels = true});
    visitor.approach();
    visitor.awaitSharedWheels();
    Yardstick::measure(state, onePeriod, [&] { visitor.open(); });
}
BENCHMARK(opensFirst)->UseManualTime()->Iterations(1);

void openPage(benchmark::State &state, const Way &way)
{
    Visitor visitor(way);
    visitor.approach();
    visitor.open();
    Yardstick::measure(
        state, onePeriod, [&] { visitor.open(); },
        [&] {
            visitor.leave();
            visitor.approach();
        });
}

void memoryOfAVisit(benchmark::State &state, const Way &way)
{
    constexpr int visits = 50;
    double used = 0;
    for (auto _ : state) {
        Visitor visitor(way);
        const auto visit = [&visitor] {
            visitor.approach();
            visitor.open();
            visitor.leave();
        };
        // What is built once and kept belongs to no visit, nor does the whole page that a holder
        // keeps.
        visit();
        visit();
        if (way.hasWheels)
            visitor.awaitSharedWheels();
        const double before = kibibytesInUse();
        for (int further = 0; further < visits; ++further)
            visit();
        used = (kibibytesInUse() - before) / visits;
        state.SetIterationTime(1e-3);
    }
    Yardstick::check(state, used, visitBudget);
}

const bool registered = [] {
    for (const Way &way : ways) {
        const std::string name = way.name;
        if (way.opensAtOnce) {
            benchmark::RegisterBenchmark(("open/" + name).c_str(), openPage, way)
                ->UseManualTime()
                ->Iterations(40)
                ->Unit(benchmark::kMillisecond);
        }
        benchmark::RegisterBenchmark(("memory/" + name).c_str(), memoryOfAVisit, way)
            ->UseManualTime()
            ->Iterations(1);
    }
    return true;
}();
} // namespace
