#include "mainscreen/PmColorGenerator.h"

#include <algorithm>

PmColorGenerator::PmColorGenerator()
{
    setStartColor(0x64DD17);
    setColorAt(0.3333F, 0xFFEB3B);
    setColorAt(0.6666F, 0xF44336);
    setEndColor(0xBA1650);
}

QColor PmColorGenerator::colorOfPm(float pm)
{
    constexpr float upperBound = 500.0F;
    return QColor(colorAt(std::clamp(pm / upperBound, 0.0F, 1.0F)));
}
