#pragma once

#include <ctime>

/// Stops the calendar of the whole process at @p unixSeconds: every question for the time of day,
/// from the C library, Qt or QML, gets this instant. Timers and animations run on.
///
/// Works in programs that link zell_fixed_clock, whose definitions of the C library's clock calls
/// take precedence over the library's own.
void stopCalendarAt(std::time_t unixSeconds);
