#include "settings/BacklightLevel.h"

namespace BacklightLevel {

namespace {
constexpr int belowIsLow = 8;
constexpr int backFromLow = 10;
constexpr int backFromFull = 255;
} // namespace

std::optional<int> backFromEnd(int level)
{
    if (level < belowIsLow)
        return backFromLow;
    if (level >= highest)
        return backFromFull;
    return std::nullopt;
}

std::optional<Groove> grooveFrom(int level)
{
    if (level < belowIsLow)
        return Groove::Low;
    if (level >= highest)
        return Groove::Full;
    if (level > backFromLow)
        return Groove::Normal;
    return std::nullopt;
}

} // namespace BacklightLevel
