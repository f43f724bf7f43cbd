#include "benchmarks/support/Yardstick.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstring>
#include <ctime>

namespace {
constexpr std::size_t frameBytes = std::size_t{854} * 480 * 4;
constexpr int warmingCopies = 100;
constexpr int measuredCopies = 500;

Yardstick::Seconds threadTime()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
}
} // namespace

Yardstick::Yardstick()
{
    const std::vector<char> source(frameBytes, 1);
    std::vector<char> target(frameBytes, 2);
    const auto copyFrame = [&] {
        std::memcpy(target.data(), source.data(), frameBytes);
        benchmark::ClobberMemory();
    };
    for (int copy = 0; copy < warmingCopies; ++copy)
        copyFrame();
    for (int copy = 0; copy < measuredCopies; ++copy)
        copies.push_back(timeOf(copyFrame).count());
}

Yardstick::Seconds Yardstick::copy(double share) const
{
    return Seconds(quantile(copies, share));
}

Yardstick::Seconds Yardstick::timeOf(const std::function<void()> &work)
{
    const Seconds start = threadTime();
    work();
    return threadTime() - start;
}

double Yardstick::quantile(std::vector<double> samples, double share)
{
    const auto wanted = samples.begin() + std::ptrdiff_t(share * double(samples.size() - 1));
    std::nth_element(samples.begin(), wanted, samples.end());
    return *wanted;
}
