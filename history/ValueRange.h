#pragma once

#include "history/LocalTime.h"

#include <QMap>

/// The span of values that a value axis covers.
struct ValueRange
{
    float min = 0;
    float max = 15;

    bool operator==(const ValueRange &) const = default;
};

/// Widens @p min to @p max so that both are multiples of 5 and @p n equal steps of a multiple of 5
/// fill the span. What does not fit in an int counts as the nearest limit. @p n below 1 counts
/// as 1.
void findPerfectValueRange(float &min, float &max, int n);

/// The well-rounded ranges of a chart.
struct ValueRanges
{
    ValueRange today;
    ValueRange all;
};

/// Finds the ranges of @p readings (Unix time to value) for an axis of @p divisions steps. The day
/// that begins at @p todayStart takes both its midnights in, and the range of everything where it
/// has no reading. Without readings both are 0 to 15.
ValueRanges valueRangesOf(const QMap<int, float> &readings, qint64 todayStart, int divisions);
