#include "device/DevicePath.h"

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
    QString quoted = text;
    quoted.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
}
