#pragma once

#include <QByteArray>
#include <QStringList>

namespace simulator {

/// Writes the shell script that behaves like the wireless scanner: for "wlan1 scanning" it prints
/// one cell for each of @p networks in this order. The name stands as it is, in UTF-8, on a line of
/// its own: 20 blanks, ESSID:"NAME". Without networks, and for other arguments, it complains on its
/// error output and fails. With @p hangs it does not end after its last cell, as long as the shell
/// that asked lives.
QByteArray scannerScript(const QStringList &networks, bool hangs = false);

} // namespace simulator
