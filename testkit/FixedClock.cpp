#include "testkit/FixedClock.h"

#include <atomic>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace {
std::atomic<std::time_t> stoppedAt{0};
}

void stopCalendarAt(std::time_t unixSeconds)
{
    stoppedAt = unixSeconds;
}

extern "C" {

int clock_gettime(clockid_t clock, timespec *result) noexcept
{
    if (stoppedAt == 0 || (clock != CLOCK_REALTIME && clock != CLOCK_REALTIME_COARSE))
        return int(syscall(SYS_clock_gettime, clock, result));
    *result = {stoppedAt, 0};
    return 0;
}

int gettimeofday(timeval *result, void *) noexcept
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    *result = {now.tv_sec, now.tv_nsec / 1000};
    return 0;
}

std::time_t time(std::time_t *result) noexcept
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    if (result)
        *result = now.tv_sec;
    return now.tv_sec;
}
}
