#pragma once

#include <QtGlobal>

namespace simulator {

/// The device's clock when the simulator starts, in seconds since midnight: eight in the morning,
/// whatever the time is here, so that every run shows the same.
inline constexpr double startOfRun = 8 * 3600.0;

/// A quantity over the day: a slow wave of 24 hours with a small ripple on it.
struct DayCurve
{
    double mean = 0;     ///< middle of the day's wave, in the quantity's unit
    double swing = 0;    ///< how far the wave goes up and down
    double peakHour = 0; ///< hour of the day at which it is highest
    double ripple = 0;   ///< how far the ripple goes up and down; one ripple takes 47 s

    /// Returns the value at @p seconds since midnight. The same @p seed gives the same curve.
    double at(double seconds, quint32 seed) const;
};

} // namespace simulator
