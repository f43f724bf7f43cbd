#include "device/DevicePath.h"

#include <QRegularExpression>

namespace {
QString deviceRoot()
{
    return qEnvironmentVariable("ZELL_DEVICE_ROOT");
}
} // namespace

QString devicePath(const QString &path)
{
    return deviceRoot() + path;
}

QString deviceSerialPort(const QString &portName)
{
    const QString root = deviceRoot();
    return root.isEmpty() ? portName : root + QStringLiteral("/dev/") + portName;
}

QString shellQuoted(const QString &text)
{
    static const QRegularExpression plainWord(QStringLiteral("\\A[A-Za-z0-9._/-]+\\z"));
    if (plainWord.match(text).hasMatch())
        return text;
    QString quoted = text;
    quoted.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
}
