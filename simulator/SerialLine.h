#pragma once

#include <QByteArray>
#include <QString>

namespace simulator {

/// The serial line between the particle sensor and the board: a pty whose far end appears in the
/// device root as a link.
class SerialLine
{
public:
    /// Takes where the serial device appears, @p link, while it is plugged in.
    explicit SerialLine(const QString &link);
    ~SerialLine();
    SerialLine(const SerialLine &) = delete;
    SerialLine &operator=(const SerialLine &) = delete;

    /// Makes the device appear. False where the system has no pty to give or the link cannot be
    /// made.
    bool plugIn();

    /// Hangs up: whoever has the device open gets an error, and the device is gone.
    void pullOut();

    bool isPluggedIn() const { return terminal >= 0; }

    /// Tells whether somebody has the device open.
    bool isOpened() const;

    /// Sends one burst in a single write, having dropped what the board sent before. Like on a
    /// wire, it is lost where nobody listens. Returns whether somebody did.
    bool send(const QByteArray &burst);

    /// Takes what the board has sent since the last call. Never waits.
    QByteArray received();

private:
    QString linkPath;
    int terminal = -1;
};

} // namespace simulator
