#pragma once

#include <algorithm>
#include <vector>

/// Returns the sample in the middle of @p samples, which must not be empty.
template <class Sample>
Sample medianOf(std::vector<Sample> samples)
{
    const auto middle = samples.begin() + std::ssize(samples) / 2;
    std::nth_element(samples.begin(), middle, samples.end());
    return *middle;
}
