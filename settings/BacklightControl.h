#pragma once

#include "device/SensorReader.h"
#include "settings/BacklightLevel.h"

#include <QObject>

/// One brightness page's hold on the backlight: its level, and whether it follows the ambient light
/// sensor.
///
/// Goes on when the page has been left and its slider and switch are gone; while they exist they
/// are bound to it. Starts in automatic mode. GUI thread.
class BacklightControl : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Tells where the slider stands: above BacklightLevel::lowest and below highest.
    int level() const { return present; }

    bool isAutomatic() const { return automatic; }
    void setAutomatic(bool on) { automatic = on; }

    /// Keeps it from sending a level that the backlight was sent last, from now on.
    void leaveBehind() { leftBehind = true; }

    /// Takes @p wanted to the backlight, also where it is the present level. At the two ends of the
    /// slider the level moved back to goes out first and the end itself after it.
    void setLevel(int wanted);

    /// Polls the light sensor once. Does nothing outside the automatic mode; what the sensor gives
    /// is brought into the slider's range, and what is no whole number changes nothing.
    void followSensor();

signals:
    /// For the slider, which must not call setLevel() from within.
    void levelChanged(int level);
    void grooveChanged(BacklightLevel::Groove groove);

private:
    // One for all pages, or a slow driver would hold up the screen once for each.
    inline static SensorReader sensor;

    int present = BacklightLevel::atOpening;
    bool automatic = true;
    bool leftBehind = false;
    bool sensorFailed = false;
};
