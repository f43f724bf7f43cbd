#pragma once

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

    /// Where the slider stands, BacklightLevel::lowest to highest.
    int level() const { return present; }

    bool isAutomatic() const { return automatic; }
    void setAutomatic(bool on) { automatic = on; }

    /// From now on a level that the backlight has already is not sent again.
    void leaveBehind() { leftBehind = true; }

    /// Takes @p wanted to the backlight, also where it is the present level. At the two ends of the
    /// slider the level moved back to goes out first and the end itself after it.
    void setLevel(int wanted);

    /// One poll of the light sensor. Does nothing outside the automatic mode; what the sensor gives
    /// is brought into the slider's range, and what is no whole number changes nothing.
    void followSensor();

signals:
    /// For the slider. A setLevel() from within is ignored.
    void levelChanged(int level);
    void grooveChanged(BacklightLevel::Groove groove);

private:
    int present = BacklightLevel::atOpening;
    bool automatic = true;
    bool leftBehind = false;
    bool announcing = false;
    bool sensorFailed = false;
};
