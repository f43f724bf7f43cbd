#include "acquisition/SharedPort.h"

#include "device/DevicePath.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <algorithm>
#include <iterator>
#include <utility>

namespace {
// Whether QSerialPort would read for the lock file of port what is none: a pipe holds it for ever.
// It takes one of these folders.
bool hasBrokenLock(const QSerialPort &port)
{
    const QString name =
        QStringLiteral("/LCK..") + port.portName().replace(QLatin1Char('/'), QLatin1Char('_'));
    const char *folders[] = {"/var/lock", "/etc/locks", "/var/spool/locks",  "/var/spool/uucp",
                             "/tmp",      "/var/tmp",   "/var/lock/lockdev", "/run/lock"};
    return std::any_of(std::cbegin(folders), std::cend(folders), [&](const char *folder) {
        const QFileInfo lock(QLatin1String(folder) + name);
        return lock.exists() && !lock.isFile();
    });
}
} // namespace

SharedPort &SharedPort::named(const QString &name)
{
    auto *port = qApp->findChild<SharedPort *>(name, Qt::FindDirectChildrenOnly);
    return port ? *port : *new SharedPort(name, qApp);
}

int SharedPort::users()
{
    int count = 0;
    const auto ports = qApp->findChildren<SharedPort *>(QString(), Qt::FindDirectChildrenOnly);
    for (const SharedPort *port : ports)
        count += port->joined;
    return count;
}

SharedPort::SharedPort(const QString &name, QObject *parent)
    : QObject(parent)
{
    setObjectName(name);
    device.setPortName(deviceSerialPort(name));
    device.setBaudRate(QSerialPort::Baud9600);
    device.setDataBits(QSerialPort::Data8);
    device.setParity(QSerialPort::NoParity);
    device.setStopBits(QSerialPort::OneStop);
    device.setFlowControl(QSerialPort::NoFlowControl);
    connect(&device, &QSerialPort::readyRead, this, [this] {
        arrived = device.readAll();
        emit readyRead();
        arrived.clear();
    });
    // Queued: the port is closed there, which must not happen inside its own read handler.
    connect(&device, &QSerialPort::errorOccurred, this, &SharedPort::closeLost,
            Qt::QueuedConnection);
}

bool SharedPort::join()
{
    if (!device.isOpen() && hasBrokenLock(device)) {
        qDebug() << "device failed to open: its lock is no file";
        return false;
    }
    if (!device.isOpen() && !device.open(QIODevice::ReadWrite)) {
        qDebug() << "device failed to open:" << device.errorString();
        return false;
    }
    ++joined;
    return true;
}

void SharedPort::leave()
{
    if (--joined == 0)
        close();
}

void SharedPort::close()
{
    if (!device.isOpen())
        return;
    // An adapter that hangs would take half a minute over it, and the screen with it.
    device.clear(QSerialPort::Output);
    device.close();
}

// An unplugged port reports its error again and again, at full load, until it is closed.
void SharedPort::closeLost(QSerialPort::SerialPortError error)
{
    const bool isLost = error == QSerialPort::ResourceError || error == QSerialPort::ReadError ||
                        error == QSerialPort::WriteError;
    // Opened anew meanwhile, it has no error any more.
    if (!isLost || error != device.error() || !device.isOpen())
        return;
    qDebug() << "UART lost, port closed:" << error;
    close();
}
