#pragma once

#include <QByteArray>
#include <QStringList>

namespace simulator {

/// What the wireless scanner prints for @p networks, one cell each in this order. The name stands
/// as it is, in UTF-8, on a line of its own: 20 blanks, ESSID:"NAME".
QByteArray wifiScan(const QString &interface, const QStringList &networks);

/// A shell script that behaves like the scanner: prints the scan of @p networks, or, without any,
/// complains on its error output and fails.
QByteArray wifiScannerScript(const QStringList &networks);

} // namespace simulator
