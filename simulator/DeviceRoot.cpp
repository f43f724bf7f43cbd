#include "simulator/DeviceRoot.h"

#include "device/DevicePath.h"
#include "simulator/ScannerScript.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cstdio>
#include <unistd.h>

namespace simulator {
namespace {
bool putInPlace(const QByteArray &newPath, const QString &path)
{
    return std::rename(newPath.constData(), QFile::encodeName(path).constData()) == 0;
}

QString besides(const QString &path)
{
    const QFileInfo info(path);
    return info.path() + QStringLiteral("/.") + info.fileName() + QStringLiteral(".new");
}

QByteArray quotedForShell(const QString &path)
{
    return QFile::encodeName(shellQuoted(path));
}
} // namespace

bool replaceFile(const QString &path, const QByteArray &content, bool executable)
{
    const QString newPath = besides(path);
    QFile file(newPath);
    if (!file.open(QIODevice::WriteOnly) &&
        !(QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)))
        return false;
    bool done = file.write(content) == content.size() && file.flush();
    if (executable)
        done = done && file.setPermissions(file.permissions() | QFile::ExeOwner | QFile::ExeGroup |
                                           QFile::ExeOther);
    file.close();
    return done && putInPlace(QFile::encodeName(newPath), path);
}

bool replaceLink(const QString &path, const QByteArray &target)
{
    const QByteArray newPath = QFile::encodeName(besides(path));
    ::unlink(newPath.constData());
    return ::symlink(target.constData(), newPath.constData()) == 0 && putInPlace(newPath, path);
}

DeviceRoot::DeviceRoot(const QString &rootPath)
    : root(rootPath)
{
}

QString DeviceRoot::serialDevice() const
{
    return root + QStringLiteral("/dev/ttyUSB0");
}

QString DeviceRoot::supplySwitch() const
{
    return root + QStringLiteral("/dev/Boost_En");
}

QString DeviceRoot::climateFile() const
{
    return root + QStringLiteral("/sys/devices/platform/sun5i-i2c.2/i2c-2/2-0044/temp_humidity");
}

QString DeviceRoot::lightFile() const
{
    return root + QStringLiteral("/sys/devices/virtual/input/input3/light_val");
}

QString DeviceRoot::backlightLog() const
{
    return root + QStringLiteral("/log/backlight");
}

QString DeviceRoot::programFolder() const
{
    return root + QStringLiteral("/sbin");
}

QString DeviceRoot::requestFolder() const
{
    return root + QStringLiteral("/run");
}

QString DeviceRoot::restartRequest() const
{
    return requestFolder() + QStringLiteral("/restart");
}

QString DeviceRoot::storeFault() const
{
    return root + QStringLiteral("/faults/store");
}

bool DeviceRoot::create(const QStringList &networks, QString *problem, bool scanHangs) const
{
    for (const QString &leftover :
         {serialDevice(), climateFile(), lightFile(), restartRequest(), storeFault()})
        QFile::remove(leftover);

    const QByteArray head = "#!/bin/sh\n";
    const bool done =
        QDir().mkpath(requestFolder()) && QDir().mkpath(root + "/dev") &&
        replaceFile(supplySwitch(), "0") && replaceFile(backlightLog(), {}) &&
        replaceFile(root + "/bin/qtapp/baklight",
                    head + "# Records the level that the backlight was set to.\n" +
                        "printf '%s\\n' \"$1\" >> " + quotedForShell(backlightLog()) + '\n',
                    true) &&
        replaceFile(root + "/bin/restartZellQt.sh",
                    head + "# Asks the simulator to stop the program and start it again.\n" +
                        ": > " + quotedForShell(restartRequest()) + '\n',
                    true) &&
        setNetworks(networks, scanHangs);
    if (!done)
        *problem = QStringLiteral("cannot make the device root %1").arg(root);
    return done;
}

bool DeviceRoot::setNetworks(const QStringList &networks, bool scanHangs) const
{
    return replaceFile(programFolder() + "/iwlist", scannerScript(networks, scanHangs), true);
}

} // namespace simulator
