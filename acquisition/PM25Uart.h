#pragma once

#include "acquisition/PM25Frame.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

class SharedPort;

/// The link to the PM2.5 sensor: its supply switch and its serial line.
///
/// GUI thread; nothing here waits. Links that are open at the same time share line and supply: each
/// gets what arrives, and both stay on until the last one is closed.
class PM25Uart : public QObject
{
    Q_OBJECT

public:
    explicit PM25Uart(QObject *parent = nullptr);
    /// Closes a link that is still open, so that the sensor is not left running.
    ~PM25Uart() override;

    /// Switches the supply on and opens the port @p name ("ttyUSB0"), after closing the one of the
    /// time before. False, with a debug line and the supply left on, where it cannot be opened.
    bool openUart(const QString &name);

    /// Switches the supply off and closes the port, where no other link is open. Harmless where
    /// nothing is.
    void closeUart();

    /// Write "1" and "0" to the sensor's supply switch. One debug line where there is none, as long
    /// as it lasts.
    void power_on();
    void power_off();

    /// Switches the supply off unless it is known to be off. Not while a link is open.
    static void restSupply();

    /// Ends the handling of one burst. Whatever @p value is, the listeners are told 1000.
    void DataHandle(int value);

signals:
    void signal_updatePMData(int iData);
    void signal_PMDataHandle(int iData);

public slots:
    /// Takes one burst of the open port. Does nothing on a closed link.
    void rxDataReady_slot();

private:
    void greet();
    void leavePort();
    static void switchSupply(char state, const char *message);

    inline static bool isSupplyFaultTold = false;

    QPointer<SharedPort> port;
    QElapsedTimer elapsed;
};
