#pragma once

#include <benchmark/benchmark.h>
#include <functional>

/// Measures work in copies of a screen.
///
/// Absolute times say little across machines, so every budget of this product is a ratio to one
/// memcpy of a whole frame (854 x 480 x 4 bytes). The copy is timed in turn with the work, in the
/// same loop, so that a busy machine slows both alike; the ratio is that of the medians.
class Yardstick
{
public:
    /// Runs @p work once per iteration of @p state and reports the counters "work_us", "memcpy_us",
    /// "ratio" and "limit". A ratio above @p limit marks the benchmark as failed and makes the
    /// program return 1. @p prepare runs before each round and is not measured. The benchmark must
    /// be registered with UseManualTime().
    static void measure(benchmark::State &state, double limit, const std::function<void()> &work,
                        const std::function<void()> &prepare = {});

    /// Reports a @p figure that is no time, a number of bytes for instance, and its @p limit as
    /// counters of @p state. A figure above its limit counts as missed, too.
    static void check(benchmark::State &state, double figure, double limit);

    /// Gives a benchmark up that could not measure anything, for @p reason. Counts as missed.
    static void fail(benchmark::State &state, const char *reason);

    /// Counts the benchmarks of this program that have missed their limit.
    static int missed();
};
