#include "settings/BacklightControl.h"

#include "device/DevicePath.h"
#include "settings/Backlight.h"

#include <QDebug>
#include <QFile>
#include <QScopedValueRollback>
#include <optional>
#include <utility>

namespace {
std::optional<int> readLightSensor()
{
    constexpr qint64 longestNumber = 64;
    QFile file(devicePath(QStringLiteral("/sys/devices/virtual/input/input3/light_val")));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return std::nullopt;
    bool isNumber = false;
    const int level = file.read(longestNumber).trimmed().toInt(&isNumber);
    return isNumber ? std::optional(level) : std::nullopt;
}
} // namespace

void BacklightControl::setLevel(int wanted)
{
    if (announcing)
        return;
    qDebug("iSliderValue is %d", wanted);
    present = BacklightLevel::bounded(wanted);
    {
        const QScopedValueRollback guard(announcing, true);
        emit levelChanged(present);
    }
    if (const std::optional<int> back = BacklightLevel::backFromEnd(wanted))
        setLevel(*back);
    if (const auto groove = BacklightLevel::grooveFrom(wanted))
        emit grooveChanged(*groove);
    setBacklight(wanted);
}

void BacklightControl::followSensor()
{
    if (!automatic)
        return;
    const std::optional<int> reading = readLightSensor();
    if (!reading) {
        if (!std::exchange(sensorFailed, true))
            qDebug("light sensor gives no number");
        return;
    }
    sensorFailed = false;
    const int wanted = BacklightLevel::bounded(*reading);
    // Every page left behind follows the sensor for ever. A level that the backlight has already is
    // not sent once more by each of them, or a long evening of visits would hold up the device.
    if (leftBehind && wanted == backlightLevel())
        present = BacklightLevel::backFromEnd(wanted).value_or(wanted);
    else if (wanted != present)
        setLevel(wanted);
}
