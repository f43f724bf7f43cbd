#include "mainscreen/DigitRow.h"

#include "shell/Global_cfg.h"

#include <cstdlib>

namespace {
constexpr int dashesWidth = 225;
constexpr int threePlacesWidth = 329;
constexpr int fourPlacesWidth = 433;
constexpr int temperatureWidth = 298;
constexpr int negativeTemperatureWidth = 402;
constexpr int humidityWidth = 273;

constexpr int firstTooLargePm = 10000;

Glyph digit(long long value)
{
    return value >= 0 && value <= 9 ? Glyph(value) : glyphBlank;
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
    const long long magnitude = std::llabs(value);
    return {.minus = value < 0 ? glyphDash : glyphHidden,
            .tens = digit(magnitude / 10),
            .units = digit(magnitude % 10),
            .width = value < 0 ? negativeTemperatureWidth : temperatureWidth};
}

DigitRow humidityRow(int value)
{
    if (value == invalidReading)
        return {.width = humidityWidth, .hidesUnit = true};
    return {.tens = digit(value / 10), .units = digit(value % 10), .width = humidityWidth};
}

QString glyphPicture(Glyph glyph)
{
    if (glyph == glyphDash)
        return QStringLiteral(":/resource/images/mainPage/num/-.png");
    if (glyph < 0)
        return {};
    return QStringLiteral(":/resource/images/mainPage/num/%1.png").arg(glyph);
}
