#include "history/LocalTime.h"

#include <ctime>

namespace LocalTime {

qint64 systemClock()
{
    return qint64(std::time(nullptr));
}

qint64 secondOfDay(qint64 time)
{
    // A device whose clock was never set lives in January 1970, a week of readings before it.
    const qint64 remainder = (time + secondsAheadOfUtc) % secondsPerDay;
    return remainder < 0 ? remainder + secondsPerDay : remainder;
}

qint64 startOfDay(qint64 time)
{
    return time - secondOfDay(time);
}

} // namespace LocalTime
