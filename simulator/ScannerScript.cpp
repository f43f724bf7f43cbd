#include "simulator/ScannerScript.h"

#include <algorithm>

namespace simulator {
namespace {
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

QByteArray scannerScript(const QStringList &networks, bool hangs)
{
    const QByteArray head =
        "#!/bin/sh\n"
        "# The wireless scanner of the simulated device.\n"
        "complain() { echo \"$1\" >&2; exit 255; }\n"
        "[ \"$*\" = 'wlan1 scanning' ] || complain \"iwlist: no such command\"\n";
    if (networks.isEmpty())
        return head +
               "complain \"wlan1     Interface doesn't support scanning : Network is down\"\n";
    QByteArray scan;
    for (int i = 0; i < networks.size(); ++i)
        scan += cell(i + 1, networks.at(i));
    // The quoted end mark keeps the shell from reading anything into the names.
    return head + "cat <<'END OF SCAN'\nwlan1     Scan completed :\n" + scan + "END OF SCAN\n" +
           // Nobody is left to end it where the program that asked is gone.
           (hangs ? "while kill -0 $PPID 2> /dev/null; do sleep 1; done\n" : "");
}

} // namespace simulator
