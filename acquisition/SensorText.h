#pragma once

#include <QByteArray>
#include <QString>

/// From the text of the temperature and humidity sensor to readings and averages. Thread-safe.

/// One reading: whole °C and whole per cent, each invalidReading where there is none.
struct TempHumReading
{
    int temperature;
    int humidity;
};

/// Rounds @p thousandths to whole units: half a unit is added and the fraction cut off. So
/// positive values are rounded half up, and -5.0 gives -4.
int wholeUnits(int thousandths);

/// Gives @p temperature in °C where it lies in -40 ... 100, otherwise invalidReading.
int validTemperature(int temperature);

/// Gives @p humidity in per cent up to 100, otherwise invalidReading. A negative one passes.
int validHumidity(int humidity);

/// Gives @p value up to 2000, otherwise invalidReading: for PM2.5 values and averages in µg/m³ and
/// for average temperatures, where some readings of the period were invalid.
int validAverage(int value);

/// Reads both fields of the sensor's @p text (UTF-8): thousandths of °C in characters 7 to 11 and
/// thousandths of a per cent in characters 25 to 29. A field that is missing or no number, and a
/// temperature cut short, gives invalidReading, the other still counts.
TempHumReading parseTempHum(const QByteArray &text);
