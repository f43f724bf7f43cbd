#include "mainscreen/PmColorGenerator.h"

PmColorGenerator::PmColorGenerator()
{
    setStartColor(0x64DD17);
    setColorAt(0.3333F, 0xFFEB3B);
    setColorAt(0.6666F, 0xF44336);
    setEndColor(0xBA1650);
}

QColor PmColorGenerator::colorOfPm(float pm)
{
    const auto lower = float(lowerBound);
    const auto upper = float(upperBound);
    float t = (pm - lower) / (upper - lower);
    if (pm < lower)
        t = 0.0F;
    else if (pm > upper)
        t = 1.0F;
    return QColor(colorAt(t));
}
