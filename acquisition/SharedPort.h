#pragma once

#include <QObject>
#include <QSerialPort>

/// A serial port of the device, 9600 baud, 8N1, that any number of links use at a time: the first
/// opens it, each gets what arrives, the last closes it. GUI thread.
class SharedPort : public QObject
{
    Q_OBJECT

public:
    /// Finds the port @p name ("ttyUSB0"). There is one of each, which belongs to the application
    /// object, open or not.
    static SharedPort &named(const QString &name);

    /// Counts those who use any port.
    static int users();

    /// Adds a user and opens the port where it is not open, or was lost. False, with a debug line
    /// and no further user, where that fails.
    bool join();

    /// Takes a user away. With the last one the port is closed; output still queued is dropped.
    void leave();

    /// What has arrived, while readyRead() is told; otherwise empty.
    QByteArray burst() const { return arrived; }

    QSerialPort &serialPort() { return device; }

signals:
    void readyRead();

private:
    SharedPort(const QString &name, QObject *parent);
    void close();
    void closeLost(QSerialPort::SerialPortError error);

    QSerialPort device{this};
    QByteArray arrived;
    int joined = 0;
};
