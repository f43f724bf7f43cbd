#pragma once

#include "acquisition/PM25Frame.h"

#include <QElapsedTimer>
#include <QObject>
#include <QSerialPort>
#include <QString>

/// The link to the PM2.5 sensor: its supply switch and its serial line, 9600 baud, 8N1.
///
/// GUI thread; nothing here waits. Frames are decoded to the debug output only: listeners of
/// signal_updatePMData() are told the same number after every burst.
class PM25Uart : public QObject
{
    Q_OBJECT

public:
    explicit PM25Uart(QObject *parent = nullptr);
    /// Closes a link that is still open, so that the sensor is not left running.
    ~PM25Uart() override;

    /// Switches the supply on and opens the port @p name ("ttyUSB0"). The port of the time before
    /// is given up first, as a line serves one port only. False, with a debug line and the supply
    /// left on, where it cannot be opened.
    bool openUart(const QString &name);

    /// Switches the supply off and closes the port. Harmless where nothing is open.
    void closeUart();

    /// Write "1" and "0" to the sensor's supply switch. Silent where it cannot be opened.
    void power_on();
    void power_off();

    /// Ends the handling of one burst. Whatever @p value is, the listeners are told 1000.
    void DataHandle(int value);

signals:
    void signal_updatePMData(int iData);
    void signal_PMDataHandle(int iData);

private slots:
    void rxDataReady_slot();

private:
    void listen();
    void portFailed(const QSerialPort *failed, QSerialPort::SerialPortError error);
    void switchSupply(char state, const char *message);

    QSerialPort *port = nullptr;
    QElapsedTimer elapsed;
    bool linkOpen = false;
};
