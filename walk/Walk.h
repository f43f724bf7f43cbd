#pragma once

#include "shell/MainWindow.h"

#include <QImage>
#include <QStringList>
#include <functional>
#include <memory>

/// A person in front of the real window: finds things by object name, touches them, waits until the
/// screen stands still, and looks. Whatever cannot be done ends the program with a message.
///
/// Lives in an Environment, whose device root stands for the device. GUI thread.
class Walk
{
public:
    /// Builds and shows a window of the product on a device with steady readings.
    Walk();
    ~Walk();

    /// Returns the visible widget named @p objectName that a finger can reach.
    QWidget *find(const QString &objectName) const;
    bool sees(const QString &objectName) const;
    QString textOf(const QString &objectName) const;

    /// Where a finger finds what is named @p objectName.
    QPoint placeOf(const QString &objectName) const;
    void tap(const QString &objectName);
    void tapAt(const QPoint &position);
    void pressAt(const QPoint &position);
    /// Lifts the finger that pressAt() or pressKey() put down.
    void release();
    /// Drags over free ground of the reading page from @p fromX to @p toX.
    void swipe(int fromX, int toX);

    /// Types on the keyboard on the screen.
    void type(const QString &keys);
    void pressKey(QChar key);

    /// Scrolls the settings menu to its end by finger.
    void scrollMenuToEnd();
    /// Opens @p tile of the settings menu, scrolling to it where it is out of sight.
    void openTile(const QString &tile);
    /// Opens a fresh window at the settings menu: the way out of pages that have none.
    void restartAtMenu();

    /// Calls @p slot of the widget of class @p className that a finger can reach.
    void call(const char *className, const char *slot);

    /// Hides and shows what stands beside @p neighbour, for states that nothing brings about yet.
    void rearrange(const QString &neighbour, const QStringList &hidden, const QStringList &shown);

    /// Gives the sensor new readings and lets the schedulers read them.
    void setReadings(double celsius, double percent);
    void breakSensor();
    /// Lets the schedulers report @p value as PM2.5.
    void setParticles(int value);
    /// Lets the wireless scanner find @p names from now on.
    void setNetworks(const QStringList &names);

    void waitFor(const QString &what, const std::function<bool()> &condition) const;
    /// Waits until nothing on the screen moves any more.
    void settle() const;

    /// Takes the picture of this stop in a moment, while a step still keeps the program busy.
    void keepPictureSoon();
    /// Returns the picture of this stop: the kept one, or the screen as it stands.
    QImage picture();

    QWidget *screen() const;

private:
    void openWindow();
    void readSensorNow() const;
    QPoint centreOf(const QWidget *widget) const;
    QWidget *reachable(const std::function<bool(const QWidget *)> &wanted) const;
    QImage look() const;

    std::unique_ptr<MainWindow> window;
    QPoint finger;
    QImage kept;
};
