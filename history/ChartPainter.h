#pragma once

#include "history/ChartScale.h"

#include <QColor>
#include <QPainter>
#include <QPointF>
#include <QSize>

/// Holds all that the still part of the chart depends on; equal frames look the same.
struct ChartFrame
{
    QSize size;
    double pixelRatio = 1;
    QColor ground;
    ChartScale::Values values;
    ChartScale::Times times;
    float rightMargin = 0;
    ValueRange range;
    int hours = 0;
    int valueDivisions = 0;
    LocalTime::Range days;  ///< readings shown as large dots
    bool otherDays = false; ///< whether the others are shown as small dots
    double revealed = 1;    ///< share of the width that the reveal animation has reached
    quint64 series = 0;     ///< counts the series handed to the chart

    /// Tells whether the axes look like those of @p other.
    bool hasAxesOf(ChartFrame other) const;
    bool operator==(const ChartFrame &) const = default;
};

/// A reading under the finger.
struct ChartMarker
{
    int x = 0;
    int y = 0;
    QColor color;
};

/// Paints the chart on a painter of the widget's size. GUI thread.
class ChartPainter
{
public:
    /// Paints on @p target, which must be active as long as this object is used.
    ChartPainter(QPainter *target, const ChartFrame &shown);

    /// Draws the axes and their grid.
    void drawAxes();

    /// Draws the line and the ring at a touched reading.
    void drawMarker(const ChartMarker &marker);

    /// Covers the pixels that drawMarker() may touch on a chart @p height pixels high: one
    /// rectangle, because a region of several makes all painting below it slow.
    static QRect markerRect(const ChartMarker &marker, int height);

private:
    void drawHourAxis();
    void drawValueAxis();
    QPen labelPen() const;
    QPen gridPen(QPointF from, QPointF to) const;

    QPainter *painter;
    const ChartFrame &frame;
};
