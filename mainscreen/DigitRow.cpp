#include "mainscreen/DigitRow.h"

#include "shell/Global_cfg.h"

#include <cstdlib>

namespace {
constexpr int dashesWidth = 225;
constexpr int threePlacesWidth = 329;
constexpr int fourPlacesWidth = 433;
constexpr int temperatureWidth = 298;
constexpr int humidityWidth = 273;
// What one more place takes.
constexpr int advance = 104;

constexpr int firstTooLargePm = 10000;

Glyph digit(long long value)
{
    return value >= 0 && value <= 9 ? Glyph(value) : glyphBlank;
}

// A value with a unit in a row of @p width for two places; the third one is there from 100.
DigitRow rowOf(long long value, int width)
{
    const bool hasHundreds = value >= 100;
    return {.hundreds = hasHundreds ? digit(value / 100) : glyphHidden,
            .tens = digit(value % 100 / 10),
            .units = digit(value % 10),
            .width = hasHundreds ? width + advance : width};
}
} // namespace

bool DigitRow::hasBlank() const
{
    return minus == glyphBlank || hundreds == glyphBlank || tens == glyphBlank ||
           units == glyphBlank;
}

std::optional<DigitRow> pmRow(int value)
{
    if (value == invalidReading)
        return DigitRow{.width = dashesWidth};
    if (value >= firstTooLargePm)
        return std::nullopt;

    DigitRow row{.hundreds = digit(value % 1000 / 100),
                 .tens = digit(value % 100 / 10),
                 .units = digit(value % 10),
                 .width = threePlacesWidth};
    if (value >= 1000) {
        row.minus = digit(value / 1000);
        row.width = fourPlacesWidth;
    }
    return row;
}

DigitRow temperatureRow(int value)
{
    if (value == invalidReading)
        return {.width = temperatureWidth, .hidesUnit = true};
    // Wider than int: the smallest int has no positive counterpart.
    DigitRow row = rowOf(std::llabs(value), temperatureWidth);
    if (value < 0) {
        row.minus = glyphDash;
        row.width += advance;
    }
    return row;
}

DigitRow humidityRow(int value)
{
    if (value == invalidReading)
        return {.width = humidityWidth, .hidesUnit = true};
    return rowOf(value, humidityWidth);
}

QString glyphPicture(Glyph glyph)
{
    if (glyph == glyphDash)
        return QStringLiteral(":/resource/images/mainPage/num/-.png");
    if (glyph < 0)
        return {};
    return QStringLiteral(":/resource/images/mainPage/num/%1.png").arg(glyph);
}
