#include "simulator/WifiScan.h"

#include <algorithm>

namespace simulator {
namespace {
constexpr auto wifiInterface = "wlan1";

QByteArray cell(int number, const QString &name)
{
    const int channel = 1 + (number * 5) % 13;
    const QString text = QStringLiteral("          Cell %1 - Address: 02:5A:4C:00:00:%2\n"
                                        "                    Channel:%3\n"
                                        "                    Frequency:%4 GHz (Channel %3)\n"
                                        "                    Quality=%5/70  Signal level=-%6 dBm\n"
                                        "                    Encryption key:on\n"
                                        "                    ESSID:\"%7\"\n"
                                        "                    Mode:Master\n");
    // The name comes last: a "%1" in it is part of the name.
    return text.arg(number, 2, 10, QLatin1Char('0'))
        .arg(number, 2, 16, QLatin1Char('0'))
        .arg(channel)
        .arg((2407 + 5 * channel) / 1000.0, 0, 'f', 3)
        .arg(std::max(10, 70 - 6 * number))
        .arg(34 + 5 * number)
        .arg(name)
        .toUtf8();
}
} // namespace

QByteArray wifiScan(const QString &interface, const QStringList &networks)
{
    QByteArray scan = interface.toUtf8() + "     Scan completed :\n";
    for (int i = 0; i < networks.size(); ++i)
        scan += cell(i + 1, networks.at(i));
    return scan;
}

QByteArray wifiScannerScript(const QStringList &networks)
{
    const QByteArray head = "#!/bin/sh\n# The wireless scanner of the simulated device.\n";
    if (networks.isEmpty())
        return head +
               "echo \"${1:-wlan1}     Interface doesn't support scanning : Network is down\" >&2\n"
               "exit 255\n";
    // The quoted end mark keeps the shell from reading anything into the names.
    return head + "cat <<'END OF SCAN'\n" + wifiScan(QLatin1String(wifiInterface), networks) +
           "END OF SCAN\n";
}

} // namespace simulator
