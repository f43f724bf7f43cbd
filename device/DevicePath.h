#pragma once

#include <QString>

/// Where a fixed path of the device lies on this machine.
///
/// Every path under /dev, /sys, /bin/qtapp and the restart script passes through here. The value of
/// the environment variable ZELL_DEVICE_ROOT is put in front of @p path; it is empty on the device,
/// so that the path stays as it is. Thread-safe.
QString devicePath(const QString &path);

/// The name under which the serial port @p portName is opened: the name as it stands on the device,
/// "<root>/dev/<name>" where ZELL_DEVICE_ROOT is set.
QString deviceSerialPort(const QString &portName);

/// @p text as one word of a POSIX shell command, whatever characters it holds.
QString shellQuoted(const QString &text);
