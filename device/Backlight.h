#pragma once

#include <QObject>
#include <QTimer>

/// The backlight of the display. GUI thread.
class Backlight : public QObject
{
    Q_OBJECT

public:
    /// The darkest level that leaves something to be seen, and the one before any is asked for.
    static constexpr int lowest = 7;
    static constexpr int atStart = 132;

    /// Finds the one backlight there is. Belongs to the application object.
    static Backlight &ofDevice();

    /// Hands @p level to the device's command, its only argument.
    ///
    /// Waits for the command, so that levels reach the device in the order of the calls, but a
    /// quarter of a second at the most. After a second it is ended, and the device is left alone
    /// for another before the last level asked for meanwhile goes out. A command that fails leaves
    /// one debug line.
    void setLevel(int level);

    /// Keeps the display at the lowest level while it is @p dark, and takes it back to level()
    /// then: what is asked for meanwhile goes out when it is dark no more.
    void setDark(bool dark);

    /// Tells the level asked for last, whatever became of it.
    int level() const { return lastLevel; }

private:
    explicit Backlight(QObject *parent);
    void passOn();
    void send();

    int lastLevel = atStart;
    bool isDark = false;
    bool isWaiting = false;
    QTimer rest{this};
};
