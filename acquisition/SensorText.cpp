#include "acquisition/SensorText.h"

#include "shell/Global_cfg.h"

namespace {
constexpr int temperatureField = 7;
constexpr int humidityField = 25;
constexpr int fieldLength = 5;
constexpr int lowestTemperature = -40;
constexpr int highestTemperature = 100;
constexpr int highestHumidity = 100;
constexpr int highestAverage = 2000;

// The whole units of the field at position. valid decides on a number that is there.
int readField(const QString &text, int position, int (*valid)(int))
{
    bool isNumber = false;
    const int thousandths = text.mid(position, fieldLength).toInt(&isNumber);
    return isNumber ? valid(wholeUnits(thousandths)) : invalidReading;
}
} // namespace

int wholeUnits(int thousandths)
{
    // Kept[round-below-zero]: half a unit is added there, too, before the fraction is cut off.
    return int((qint64(thousandths) + 500) / 1000);
}

int validTemperature(int temperature)
{
    const bool isValid = temperature >= lowestTemperature && temperature <= highestTemperature;
    return isValid ? temperature : invalidReading;
}

int validHumidity(int humidity)
{
    // Kept[negative-humidity]: passes.
    return humidity <= highestHumidity ? humidity : invalidReading;
}

int validAverage(int value)
{
    return value <= highestAverage ? value : invalidReading;
}

TempHumReading parseTempHum(const QByteArray &text)
{
    const QString characters = QString::fromUtf8(text);
    // A text that ends within the temperature has lost digits: "234" of 23456 would be 0 degrees.
    // The humidity comes last, and below 10 per cent it is short by itself.
    const bool isCut = characters.size() < temperatureField + fieldLength;
    return {isCut ? invalidReading : readField(characters, temperatureField, validTemperature),
            readField(characters, humidityField, validHumidity)};
}
