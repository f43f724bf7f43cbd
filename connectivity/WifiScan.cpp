#include "connectivity/WifiScan.h"

#include "device/Command.h"
#include "device/DevicePath.h"

#include <QDebug>
#include <QIODevice>

namespace {
constexpr int nameStart = 27;
constexpr qsizetype mostNetworks = 1000;
constexpr qint64 mostBytes = 8LL * 1024 * 1024;
constexpr qint64 shellBlock = 512;
constexpr qint64 mostBytesOfLine = 1024;

// Kept[name-by-column]: a line of any shape is cut at the same places.
QString networkName(QByteArrayView line)
{
    if (line.endsWith('\n'))
        line.chop(1);
    if (line.endsWith('\r'))
        line.chop(1);
    QString name = QString::fromUtf8(line).mid(nameStart);
    name.chop(1);
    return name;
}
} // namespace

QString scanFilePath(const QString &directory)
{
    return directory + QStringLiteral("/../resource/WiFi-SSID.txt");
}

QString scanCommand(const QString &directory)
{
    return QStringLiteral("iwlist ") + QStringLiteral("wlan1") +
           QStringLiteral(" scanning|grep ESSID > ") + shellQuoted(scanFilePath(directory));
}

void runScan(const QString &command, std::chrono::milliseconds limit)
{
    // Not a limit for the reader alone: a scanner that never ends would fill the disk. To grep a
    // scan with one odd byte in a name is no text, unless it is told so; and what a hanging scanner
    // has found would go with it.
    const QString before =
        QStringLiteral("ulimit -f %1; grep() { command grep -a --line-buffered \"$@\"; }; ");
    runCommand(before.arg(mostBytes / shellBlock) + command, limit);
}

QStringList readNetworkNames(QIODevice &scan)
{
    QStringList names;
    qint64 bytesLeft = mostBytes;
    const auto readPiece = [&] {
        // Qt counts a terminating zero in.
        QByteArray piece = scan.readLine(mostBytesOfLine + 1);
        bytesLeft -= piece.size();
        return piece;
    };
    while (!scan.atEnd() && names.size() < mostNetworks && bytesLeft > 0) {
        const QByteArray line = readPiece();
        names.append(networkName(line));
        for (QByteArray piece = line; !piece.isEmpty() && !piece.endsWith('\n') && bytesLeft > 0;)
            piece = readPiece();
    }
    if (!scan.atEnd())
        qDebug() << "scan result too long: only the first" << names.size() << "networks are listed";
    return names;
}
