#include "simulator/DayCurve.h"

#include <cmath>
#include <numbers>

namespace simulator {
namespace {
constexpr double turn = 2 * std::numbers::pi;
constexpr double day = 24 * 3600.0;
constexpr double ripplePeriod = 47;
// Neighbouring seeds start the ripple at places far from each other.
constexpr double goldenSection = 0.6180339887;
} // namespace

double DayCurve::at(double seconds, quint32 seed) const
{
    const double wave = std::cos(turn * (seconds / day - peakHour / 24));
    const double phase = std::fmod(seed * goldenSection, 1.0);
    return mean + swing * wave + ripple * std::sin(turn * (seconds / ripplePeriod + phase));
}

} // namespace simulator
