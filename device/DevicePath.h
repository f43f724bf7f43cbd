#pragma once

#include <QString>

/// Where things of the device lie on this machine. All thread-safe.

/// Tells where the fixed path @p path of the device lies.
///
/// Every path under /dev, /sys, /bin/qtapp and the restart script passes through here. The value of
/// the environment variable ZELL_DEVICE_ROOT is put in front of it; that is empty on the device, so
/// that the path stays as it is.
QString devicePath(const QString &path);

/// Names the serial port @p portName as it is opened: the name as it stands on the device,
/// "<root>/dev/<name>" where ZELL_DEVICE_ROOT is set.
QString deviceSerialPort(const QString &portName);

/// Writes @p text as one word of a POSIX shell command, whatever characters it holds. One of plain
/// letters, digits and . _ - / alone stays as it is.
QString shellQuoted(const QString &text);
