#include "connectivity/WifiScan.h"
#include "fuzz/Targets.h"

#include <QBuffer>

void fuzzScanFile(const QByteArray &bytes)
{
    QBuffer scan;
    scan.setData(bytes);
    scan.open(QIODevice::ReadOnly);
    const QStringList names = readNetworkNames(scan);
    hold(names.size() <= 1000, "no more networks than can be in reach");
    hold(names.size() <= bytes.count('\n') + 1, "no more networks than lines");
    for (const QString &name : names) {
        hold(name.size() < 1024, "no name is longer than what is read of a line");
        hold(!name.contains(QLatin1Char('\n')), "a name is one line");
    }
}
