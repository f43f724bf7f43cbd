#pragma once

#include "history/ValueRange.h"

#include <QList>

/// Where times and values lie on the chart, in pixels. Pure functions, safe for a widget of any
/// size.
namespace ChartScale {

/// Truncates @p value towards zero; beyond any screen it stops at 16,777,216 pixels, NaN gives 0.
int truncated(double value);

/// The vertical scale of the plot area.
struct Values
{
    float bottom = -1; ///< y of the lower end of the axis
    float top = -1;    ///< y of the upper end
    float scale = 0;   ///< pixels per unit, negative because larger values are higher
    float offset = 0;  ///< y of the value 0

    /// Gives the y of @p value.
    float toY(float value) const { return offset + value * scale; }
    /// Gives the value at @p y, mirrored about the middle of the plot area. 0 where the area has no
    /// height.
    float toValue(float y) const;
    bool operator==(const Values &) const = default;
};

/// Spans a widget @p height pixels high whose plot spans @p range between its margins.
Values valuesOf(int height, float topMargin, float bottomMargin, ValueRange range);

/// The horizontal scale: one day, whatever the date of a reading.
struct Times
{
    float left = 0;
    float pxPerHour = 0;
    float pxPerSecond = 0;

    /// Gives the x of the local time of day of @p time.
    float toX(qint64 time) const;
    bool operator==(const Times &) const = default;
};

/// Spans a plot @p width pixels wide, margins not counted, that shows @p hours steps.
Times timesOf(int width, float leftMargin, float rightMargin, int hours);

/// One label of the hour axis, and whether a grid line goes with it.
struct HourTick
{
    int hour = 0;
    float x = 0;
    int labelX = 0;
    bool hasLine = false;
};

/// Lists the labels 0 to @p hours. None where the margins leave no width.
QList<HourTick> hourTicks(const Times &times, int width, float rightMargin, int hours);

/// One label of the value axis and its grid line.
struct ValueTick
{
    qint64 value = 0;
    int y = 0;
};

/// Lists the labels from the bottom up. A plot too low for @p divisions steps has its lowest one
/// only, one without any height none.
QList<ValueTick> valueTicks(const Values &values, ValueRange range, int divisions);

} // namespace ChartScale
