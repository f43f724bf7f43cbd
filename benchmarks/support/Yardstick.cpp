#include "benchmarks/support/Yardstick.h"

#include "benchmarks/support/Median.h"

#include <chrono>
#include <cstring>
#include <vector>

namespace {
using Seconds = std::chrono::duration<double>;

constexpr std::size_t frameBytes = std::size_t{854} * 480 * 4;
int missedLimits = 0;

void compare(benchmark::State &state, double figure, double limit)
{
    state.counters["limit"] = limit;
    if (figure > limit) {
        ++missedLimits;
        state.SetLabel("ABOVE ITS LIMIT");
    }
}

void copyFrame()
{
    static std::vector<char> source(frameBytes, 1);
    static std::vector<char> target(frameBytes, 2);
    benchmark::DoNotOptimize(source.data());
    std::memcpy(target.data(), source.data(), frameBytes);
    benchmark::DoNotOptimize(target.data());
    benchmark::ClobberMemory();
}

Seconds timeOf(const std::function<void()> &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::steady_clock::now() - start;
}
} // namespace

void Yardstick::measure(benchmark::State &state, double limit, const std::function<void()> &work,
                        const std::function<void()> &prepare)
{
    std::vector<Seconds> copies;
    std::vector<Seconds> works;
    copyFrame();
    for (auto _ : state) {
        if (prepare)
            prepare();
        copies.push_back(timeOf(copyFrame));
        works.push_back(timeOf(work));
        state.SetIterationTime(works.back().count());
    }

    constexpr double microseconds = 1e6;
    const double copy = medianOf(std::move(copies)).count() * microseconds;
    const double effort = medianOf(std::move(works)).count() * microseconds;
    const double ratio = effort / copy;
    state.counters["memcpy_us"] = copy;
    state.counters["work_us"] = effort;
    state.counters["ratio"] = ratio;
    compare(state, ratio, limit);
}

void Yardstick::check(benchmark::State &state, double figure, double limit)
{
    state.counters["figure"] = figure;
    compare(state, figure, limit);
}

void Yardstick::fail(benchmark::State &state, const char *reason)
{
    ++missedLimits;
    state.SkipWithError(reason);
}

int Yardstick::missed()
{
    return missedLimits;
}
