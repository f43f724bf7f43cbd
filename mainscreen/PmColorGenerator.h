#pragma once

#include "mainscreen/GradualValueToColor.h"

#include <QColor>

/// The PM2.5 colour scale, the only one of the product: green, yellow, red, purple-red from 0 to
/// 500 µg/m³.
class PmColorGenerator : public GradualValueToColor
{
public:
    PmColorGenerator();

    /// Gives the colour of the concentration @p pm in µg/m³. Below 0 and NaN give the colour of 0,
    /// above 500 that of 500.
    QColor colorOfPm(float pm);
};
