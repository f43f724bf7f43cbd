#include "acquisition/PM25Uart.h"

#include "acquisition/GetData.h"
#include "device/DevicePath.h"
#include "shell/Global_cfg.h"

#include <QDebug>
#include <QFile>
#include <QSerialPortInfo>

namespace {
constexpr int testLines = 10;
constexpr int reportedValue = 1000;
} // namespace

PM25Uart::PM25Uart(QObject *parent)
    : QObject(parent)
{
    qDebug() << " UART 构造函数调用 ";
    if (getData != nullptr)
        connect(this, &PM25Uart::signal_PMDataHandle, getData, &GetData::PM25DataHandle_slot);
}

PM25Uart::~PM25Uart()
{
    if (linkOpen)
        closeUart();
    qDebug() << " UART 析构函数调用 ";
}

bool PM25Uart::openUart(const QString &name)
{
    elapsed.start();
    power_on();
    for (const QSerialPortInfo &info : QSerialPortInfo::availablePorts())
        qDebug() << "Current UART --------------- " << info.portName();

    if (port != nullptr) {
        // It holds the lock on the line: left open, it would keep the new one out for good. And one
        // port kept for every sampling would add up over the months that a device runs.
        port->close();
        port->deleteLater();
    }
    port = new QSerialPort(deviceSerialPort(name), this);
    port->setBaudRate(QSerialPort::Baud9600);
    port->setDataBits(QSerialPort::Data8);
    port->setParity(QSerialPort::NoParity);
    port->setStopBits(QSerialPort::OneStop);
    port->setFlowControl(QSerialPort::NoFlowControl);
    if (!port->open(QIODevice::ReadWrite)) {
        qDebug() << "device failed to open:" << port->errorString();
        return false;
    }
    linkOpen = true;
    listen();
    return true;
}

void PM25Uart::listen()
{
    connect(port, &QSerialPort::readyRead, this, &PM25Uart::rxDataReady_slot);
    // Queued: the port is closed there, which must not happen inside its own read handler.
    connect(
        port, &QSerialPort::errorOccurred, this,
        [this, source = port](QSerialPort::SerialPortError error) { portFailed(source, error); },
        Qt::QueuedConnection);

    for (int i = 0; i < testLines; ++i) {
        const QByteArray text = "UART Test = " + QByteArray::number(i) + "\r\n";
        port->write(text);
        qDebug() << text.constData();
    }
    qDebug() << "UART listening status = " << port->isOpen();
    qDebug() << "UART listening for data on" << port->portName() << port->isOpen();
}

void PM25Uart::closeUart()
{
    power_off();
    if (port != nullptr && port->isOpen())
        port->close();
    linkOpen = false;
    qDebug() << "UART close!";
}

void PM25Uart::power_on()
{
    switchSupply('1', "Boost_En on");
}

void PM25Uart::power_off()
{
    switchSupply('0', "Boost_En off");
}

void PM25Uart::switchSupply(char state, const char *message)
{
    QFile file(devicePath(QStringLiteral("/dev/Boost_En")));
    if (!file.open(QIODevice::ReadWrite))
        return;
    file.putChar(state);
    file.close();
    qDebug() << message;
}

void PM25Uart::rxDataReady_slot()
{
    qDebug() << elapsed.elapsed() << "ms";
    const qint64 available = port->bytesAvailable();
    if (available == 0) {
        qDebug() << "UART 无数据错误中断！";
    } else {
        QByteArray bytes = port->read(available);
        qDebug() << "UART Rx Data Num =" << bytes.size();
        qDebug() << "UART Rx Data: " << bytes;
        // A frame is what one burst brings: nothing is collected over several.
        if (isPm25Frame(bytes) && PM2_5_dataHandle(&bytes) == PM25_ERROR_DATA)
            qDebug() << "Read PM2.5 Error ";
    }
    DataHandle(PM25_ERROR_DATA);
}

void PM25Uart::DataHandle(int value)
{
    qDebug() << "Read PM2.5 = " << value;
    emit signal_updatePMData(reportedValue);
}

/// An unplugged port reports its error again and again, at full load, until it is closed.
void PM25Uart::portFailed(const QSerialPort *failed, QSerialPort::SerialPortError error)
{
    const bool isLost = error == QSerialPort::ResourceError || error == QSerialPort::ReadError;
    if (!isLost || failed != port || !port->isOpen())
        return;
    qDebug() << "UART lost, port closed:" << error;
    port->close();
}
