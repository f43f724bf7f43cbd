#include "history/ChartScale.h"

#include <algorithm>
#include <cmath>

namespace ChartScale {

int truncated(double value)
{
    // No widget is larger, and a float still counts single pixels up to here.
    constexpr double farthest = 16777216.0;
    return std::isnan(value) ? 0 : int(std::clamp(value, -farthest, farthest));
}

float Values::toValue(float y) const
{
    // Kept[mirrored-value]: about the middle of the plot.
    return scale == 0.0F ? 0.0F : (bottom + top - y - offset) / scale;
}

Values valuesOf(int height, float topMargin, float bottomMargin, ValueRange range)
{
    Values values;
    values.bottom = float(truncated(float(height) - bottomMargin));
    values.top = float(truncated(topMargin));
    // Neighbouring values beyond 16 millions can be the same float.
    const float span = range.max - range.min;
    values.scale = span > 0.0F ? (values.top - values.bottom) / span : 0.0F;
    values.offset = values.bottom - range.min * values.scale;
    return values;
}

float Times::toX(qint64 time) const
{
    return left + float(LocalTime::secondOfDay(time)) * pxPerSecond;
}

Times timesOf(int width, float leftMargin, float rightMargin, int hours)
{
    const auto plotWidth = float(truncated(float(width) - leftMargin - rightMargin));
    return {leftMargin, hours > 0 ? plotWidth / float(hours) : 0.0F,
            plotWidth / float(LocalTime::secondsPerDay)};
}

QList<HourTick> hourTicks(const Times &times, int width, float rightMargin, int hours)
{
    QList<HourTick> ticks;
    if (times.pxPerHour <= 0.0F)
        return ticks;
    for (int hour = 0; hour <= hours; ++hour) {
        const qint64 second = LocalTime::secondsPerHour * hour % LocalTime::secondsPerDay;
        const float x =
            hour < hours ? times.left + float(second) * times.pxPerSecond
                         : times.left + float(truncated(float(width) - rightMargin - times.left));
        const int halfLabel = hour < 10 ? 5 : 10;
        ticks.append({hour, x, truncated(x - float(halfLabel)), hour % 2 == 0});
    }
    return ticks;
}

QList<ValueTick> valueTicks(const Values &values, ValueRange range, int divisions)
{
    const int steps = std::max(divisions, 1);
    const auto valueStep = qint64((range.max - range.min) / float(steps));
    const int yStep = truncated((values.bottom - values.top) / float(steps));
    QList<ValueTick> ticks;
    auto value = qint64(range.min);
    for (int y = truncated(values.bottom); float(y) >= values.top; y -= yStep) {
        ticks.append({value, y});
        value += valueStep;
        if (yStep < 1)
            break;
    }
    return ticks;
}

} // namespace ChartScale
