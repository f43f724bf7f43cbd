#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace simulator {

/// The folder that stands for the root of the device: where everything lies in it, and writing that
/// is never seen half done.
class DeviceRoot
{
public:
    /// Takes @p rootPath, an absolute path; create() makes it.
    explicit DeviceRoot(const QString &rootPath);

    QString path() const { return root; }
    QString serialDevice() const;  ///< dev/ttyUSB0, a link to a pty
    QString supplySwitch() const;  ///< dev/Boost_En, "1" while the particle sensor has power
    QString climateFile() const;   ///< temperature and humidity
    QString lightFile() const;     ///< ambient light
    QString backlightLog() const;  ///< one line per level the backlight was set to
    QString programFolder() const; ///< holds `iwlist`; comes first in PATH
    QString requestFolder() const; ///< holds the restart request
    QString restartRequest() const;
    QString storeFault() const; ///< there while the store cannot be written

    /// Makes the folders and scripts, clears the logs and requests of an earlier run. False, and
    /// the reason in @p problem, where that is not possible.
    bool create(const QStringList &networks, QString *problem, bool scanHangs = false) const;

    /// Lets the wireless scanner find @p networks from now on. False where it cannot be written.
    bool setNetworks(const QStringList &networks, bool scanHangs = false) const;

private:
    QString root;
};

/// Puts @p content at @p path in one step: a reader finds the old file or the new one. Makes the
/// folder where it is missing. False where it cannot be written.
bool replaceFile(const QString &path, const QByteArray &content, bool executable = false);

/// Puts a symbolic link to @p target at @p path in one step.
bool replaceLink(const QString &path, const QByteArray &target);

} // namespace simulator
