#pragma once

#include <chrono>
#include <functional>
#include <vector>

/// What every row of the benchmarks is measured with: CPU time of this thread, and one memcpy of a
/// whole frame (854 x 480 x 4 bytes), warm, as the unit.
class Yardstick
{
public:
    using Seconds = std::chrono::duration<double>;

    /// Measures the copy by itself. Before the first row, whose traces in the caches would count.
    Yardstick();

    /// Gives the time that @p share (0 to 1) of the copies do not exceed; the unit is that of half.
    Seconds copy(double share = 0.5) const;

    /// Returns the CPU time that this thread spends in @p work.
    static Seconds timeOf(const std::function<void()> &work);

    /// Returns the one that @p share (0 to 1) of @p samples do not exceed; there must be some.
    static double quantile(std::vector<double> samples, double share);

private:
    std::vector<double> copies;
};
