#include "testkit/Environment.h"

#include "pages/Fonts.h"

#include <QDir>
#include <QFile>

Environment::Environment()
    : previousDirectory(QDir::currentPath())
{
    Q_INIT_RESOURCE(ZellQt);
    // The program leaves its wireless scan beside its working directory.
    for (const char *folder : {"work", "resource"})
        QDir(directory.path()).mkpath(QLatin1String(folder));
    QDir::setCurrent(directory.filePath(QStringLiteral("work")));
    qputenv("ZELL_DEVICE_ROOT", QFile::encodeName(directory.filePath(QStringLiteral("device"))));
    qputenv("PATH", QFile::encodeName(device().programFolder()) + ':' + qgetenv("PATH"));
    QString problem;
    if (!device().create({}, &problem))
        qFatal("%s", qPrintable(problem));
    substituteFonts();
    setPlainText();
    QFile style(QStringLiteral(":/resource/qss/ZellQt.qss"));
    if (style.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(QString::fromUtf8(style.readAll()));
}

Environment::~Environment()
{
    QDir::setCurrent(previousDirectory);
}

simulator::DeviceRoot Environment::device()
{
    return simulator::DeviceRoot(qEnvironmentVariable("ZELL_DEVICE_ROOT"));
}

void Environment::writeDeviceFile(const QString &path, const QByteArray &content)
{
    if (!simulator::replaceFile(deviceRoot() + path, content))
        qFatal("cannot write %s", qPrintable(path));
}

void Environment::writeDeviceScript(const QString &path, const QByteArray &commands)
{
    if (!simulator::replaceFile(deviceRoot() + path, "#!/bin/sh\n" + commands + "\n", true))
        qFatal("cannot write %s", qPrintable(path));
}

QByteArray Environment::contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
