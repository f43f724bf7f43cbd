#pragma once

#include <QtGlobal>
#include <functional>

/// The days of the history: Unix seconds in a fixed local time of UTC + 8 hours, whatever the zone
/// of the system. Any thread.
namespace LocalTime {

/// Tells the current time in Unix seconds. The product passes systemClock, a test its own.
using Clock = std::function<qint64()>;

inline constexpr qint64 secondsPerHour = 3600;
inline constexpr qint64 secondsPerDay = 86400;
inline constexpr qint64 secondsAheadOfUtc = 28800;

/// Unix seconds from @p start to before @p end.
struct Range
{
    qint64 start = 0;
    qint64 end = 0;

    bool contains(qint64 time) const { return time >= start && time < end; }
    bool operator==(const Range &) const = default;
};

/// Asks the system's clock, in Unix seconds.
qint64 systemClock();

/// Gives the local time of day of @p time: 0 to 86399, also before 1970.
qint64 secondOfDay(qint64 time);

/// Gives the Unix time at which the local day of @p time began.
qint64 startOfDay(qint64 time);

} // namespace LocalTime
