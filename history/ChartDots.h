#pragma once

#include "history/ChartPainter.h"
#include "history/DotStamps.h"
#include "mainscreen/PmColorGenerator.h"

#include <QMap>

/// Draws the readings of a chart: large dots in the colours of its days, small ones for the others.
/// GUI thread.
class ChartDots
{
public:
    /// Draws a dot for each of @p readings, Unix time to value, on @p picture of the chart's size.
    void draw(QImage *picture, const ChartFrame &frame, const QMap<int, float> &readings,
              PmColorGenerator *colors);

private:
    DotStamps own{16};
    DotStamps other{4};
};
