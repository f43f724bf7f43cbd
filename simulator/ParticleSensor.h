#pragma once

#include "simulator/Scenario.h"
#include "simulator/SerialLine.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <functional>

namespace simulator {

/// The particle sensor on its serial line: sends a frame every second while its supply switch holds
/// 1, with the faults of the scenario.
class ParticleSensor : public QObject
{
    Q_OBJECT
public:
    /// @p particlesNow gives the concentration in µg/m³.
    ParticleSensor(const Scenario &scenario, const QString &serialDevice,
                   const QString &supplySwitch, quint32 seed, std::function<double()> particlesNow,
                   QObject *parent = nullptr);

    /// Plugs the sensor in. False where there is no pty to be had.
    bool start();

    /// Puts a lost supply switch back, in the position "off".
    void keepSupplySwitch();

private:
    void readSupplySwitch();
    void sendFrame();
    void sendBursts(QList<QByteArray> bursts);
    void pullOut();

    SerialLine line;
    QString switchPath;
    QFileSystemWatcher switchWatcher;
    QTimer frameTimer;
    QList<FrameFault> faults;
    std::function<double()> particles;
    QRandomGenerator random;
    qsizetype framesSent = 0;
    int framesUntilUnplug = 0;
    int framesSincePlugged = 0;
};

} // namespace simulator
