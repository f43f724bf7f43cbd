#include "acquisition/SensorText.h"

#include "fuzz/Targets.h"
#include "shell/Global_cfg.h"

void fuzzSensorText(const QByteArray &bytes)
{
    const auto [temperature, humidity] = parseTempHum(bytes);
    hold(temperature == validTemperature(temperature), "a temperature is valid or none");
    // Five characters: -9999 to 99999 thousandths.
    hold(humidity == invalidReading || (humidity >= -9 && humidity <= 100),
         "a humidity is valid or none");
    hold(bytes.size() > 11 || temperature == invalidReading, "a text cut short has no temperature");
}
