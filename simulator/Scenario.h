#pragma once

#include "simulator/DayCurve.h"
#include "simulator/FirmwareAnswer.h"
#include "simulator/SensorFrame.h"
#include "simulator/StoreTrouble.h"
#include "simulator/SysfsText.h"

#include <QList>
#include <QStringList>
#include <optional>

namespace simulator {

/// What the simulated device goes through. Everything not said in a row of the table is an ordinary
/// day with sound hardware; the fault lists are gone through over and over.
struct Scenario
{
    QString name;
    QString summary;
    DayCurve temperature{.mean = 23.5, .swing = 2.5, .peakHour = 15, .ripple = 0.2}; ///< °C
    DayCurve humidity{.mean = 45, .swing = 8, .peakHour = 5, .ripple = 0.5};         ///< %
    DayCurve particles{.mean = 60, .swing = 35, .peakHour = 19, .ripple = 6};        ///< µg/m³
    DayCurve light{.mean = 130, .swing = 110, .peakHour = 13, .ripple = 3};          ///< level
    bool hasSensors = true; ///< false: neither serial device nor sysfs files
    QList<FrameFault> frames{FrameFault::None};
    QList<TextFault> texts{TextFault::None};
    int sensorDelay = 0;       ///< ms that the driver of temperature and humidity takes to answer
    int framesUntilUnplug = 0; ///< the serial device vanishes after so many frames; 0: never
    QStringList networks{QStringLiteral("Studio"), QStringLiteral("Garden"), QStringLiteral("客厅"),
                         QStringLiteral("Workshop 5G"), QStringLiteral("Guest House")};
    bool scanHangs = false; ///< the scanner lists the networks and does not end
    QList<FirmwareFault> firmware{FirmwareFault::None};
    StoreFault store = StoreFault::None;
};

/// Lists every scenario, the default first.
const QList<Scenario> &scenarios();

/// Finds the scenario called @p name, or nothing. "bad-firmware:FAULT" is that scenario with the
/// one fault for every request.
std::optional<Scenario> findScenario(const QString &name);

/// Lists the names of the firmware faults, for "bad-firmware:FAULT".
QStringList firmwareFaultNames();

} // namespace simulator
