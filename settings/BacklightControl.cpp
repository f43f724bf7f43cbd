#include "settings/BacklightControl.h"

#include "device/Backlight.h"
#include "device/DevicePath.h"

#include <QDebug>
#include <algorithm>
#include <optional>
#include <utility>

namespace {
std::optional<int> levelIn(const QByteArray &text)
{
    bool isNumber = false;
    const int level = text.trimmed().toInt(&isNumber);
    return isNumber ? std::optional(level) : std::nullopt;
}
} // namespace

void BacklightControl::setLevel(int wanted)
{
    qDebug("iSliderValue is %d", wanted);
    const std::optional<int> back = BacklightLevel::backFromEnd(wanted);
    present = back.value_or(wanted);
    emit levelChanged(present);
    if (const auto groove = BacklightLevel::grooveFrom(wanted))
        emit grooveChanged(*groove);
    // Kept[end-level-last]: at an end the level moved back to goes out first.
    if (back) {
        qDebug("iSliderValue is %d", *back);
        Backlight::ofDevice().setLevel(*back);
    }
    Backlight::ofDevice().setLevel(wanted);
}

void BacklightControl::followSensor()
{
    if (!automatic)
        return;
    const std::optional<int> reading = levelIn(
        sensor.read(devicePath(QStringLiteral("/sys/devices/virtual/input/input3/light_val"))));
    if (!reading) {
        if (!std::exchange(sensorFailed, true))
            qDebug("light sensor gives no number");
        return;
    }
    sensorFailed = false;
    const int wanted = std::clamp(*reading, BacklightLevel::lowest, BacklightLevel::highest);
    // Kept[left-page-follows]: every page left behind does, for ever. A level that was sent last is
    // not sent once more by each of them, or a long evening of visits would hold up the device.
    if (leftBehind && wanted == Backlight::ofDevice().level())
        present = BacklightLevel::backFromEnd(wanted).value_or(wanted);
    else if (wanted != present)
        setLevel(wanted);
}
