#include "testkit/Environment.h"

#include "pages/Fonts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

Environment::Environment()
    : previousDirectory(QDir::currentPath())
{
    Q_INIT_RESOURCE(ZellQt);
    QDir(directory.path()).mkpath(QStringLiteral("work"));
    QDir(directory.path()).mkpath(QStringLiteral("device/dev"));
    QDir::setCurrent(directory.filePath(QStringLiteral("work")));
    qputenv("ZELL_DEVICE_ROOT", QFile::encodeName(directory.filePath(QStringLiteral("device"))));
    substituteFonts();
    QFile style(QStringLiteral(":/resource/qss/ZellQt.qss"));
    if (style.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(QString::fromUtf8(style.readAll()));
}

Environment::~Environment()
{
    QDir::setCurrent(previousDirectory);
}

QString Environment::deviceRoot()
{
    return qEnvironmentVariable("ZELL_DEVICE_ROOT");
}

void Environment::writeDeviceFile(const QString &path, const QByteArray &content)
{
    const QString fullPath = deviceRoot() + path;
    QDir().mkpath(QFileInfo(fullPath).path());
    QFile file(fullPath);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(fullPath));
}

void Environment::writeDeviceScript(const QString &path, const QByteArray &commands)
{
    writeDeviceFile(path, "#!/bin/sh\n" + commands + "\n");
    QFile::setPermissions(deviceRoot() + path, QFile::ReadUser | QFile::WriteUser | QFile::ExeUser);
}

QByteArray Environment::contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
