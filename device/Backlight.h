#pragma once

#include <QObject>
#include <QTimer>

/// The backlight of the display. GUI thread.
class Backlight : public QObject
{
    Q_OBJECT

public:
    /// Finds the one backlight there is. Belongs to the application object.
    static Backlight &ofDevice();

    /// Hands @p level to the device's command, its only argument.
    ///
    /// Waits for the command, so that levels reach the device in the order of the calls, but a
    /// quarter of a second at the most. After a second it is ended, and the device is left alone
    /// for another before the last level asked for meanwhile goes out. A command that fails leaves
    /// one debug line.
    void setLevel(int level);

    /// Tells the level asked for last, whatever became of it; -1 before the first.
    int level() const { return lastLevel; }

private:
    explicit Backlight(QObject *parent);
    void send();

    int lastLevel = -1;
    bool isWaiting = false;
    QTimer rest{this};
};
