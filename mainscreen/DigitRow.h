#pragma once

#include <QString>
#include <optional>

/// What one place of a reading in digit pictures shows: a digit from 0 to 9 or one of the values
/// below.
using Glyph = int;
inline constexpr Glyph glyphHidden = -1;
/// The place is kept but stays empty: there is no picture for its digit.
inline constexpr Glyph glyphBlank = -2;
/// The minus sign, and the mark of a missing reading.
inline constexpr Glyph glyphDash = -3;

/// One reading, from left to right.
struct DigitRow
{
    /// Minus sign, or the thousands of PM2.5.
    Glyph minus = glyphHidden;
    Glyph hundreds = glyphHidden;
    Glyph tens = glyphDash;
    Glyph units = glyphDash;
    /// Width of the row's frame in pixels; it keeps the row centred.
    int width = 0;
    bool hidesUnit = false;

    /// Tells whether a place has no picture.
    bool hasBlank() const;
};

/// Writes a PM2.5 value in ug/m3: three places below 1000, four from there, two dashes for
/// invalidReading, nothing from 10000 (not credible). The places of a negative value, which no
/// sensor delivers, are blank where their digit is below zero.
std::optional<DigitRow> pmRow(int value);

/// Writes a temperature in whole degrees: a minus sign where needed and two places, three from 100,
/// of which the hundreds stay blank from 1000; two dashes without unit for invalidReading.
DigitRow temperatureRow(int value);

/// Writes a relative humidity in per cent: places as in temperatureRow(), negative values as in
/// pmRow().
DigitRow humidityRow(int value);

/// Names the resource of a digit or dash. Empty for a hidden or blank place.
QString glyphPicture(Glyph glyph);
