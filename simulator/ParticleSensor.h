#pragma once

#include "simulator/Scenario.h"
#include "simulator/SerialLine.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <functional>

namespace simulator {

/// The particle sensor on its serial line: sends a frame every second while its supply switch holds
/// 1, with the faults of the scenario.
class ParticleSensor : public QObject
{
    Q_OBJECT
public:
    struct Settings
    {
        QString serialDevice; ///< where it appears while it is plugged in
        QString supplySwitch; ///< path of the file that switches it on
        quint32 seed = 1;     ///< start of its random numbers
        std::chrono::milliseconds framePeriod{1000};
        /// Long enough for the reader to see two bursts, short against the frame period.
        std::chrono::milliseconds burstPause{200};
        /// Short against a sampling of ten seconds, so that the return falls into it as well.
        std::chrono::milliseconds unpluggedFor{3000};
    };

    /// Asks @p particlesNow for the concentration, in µg/m³.
    ParticleSensor(const Scenario &scenario, Settings sensorSettings,
                   std::function<double()> particlesNow, QObject *parent = nullptr);

    /// Plugs the sensor in. False where there is no pty to be had.
    bool start();

    /// Puts a lost supply switch back, in the position "off".
    void keepSupplySwitch();

private:
    void readSupplySwitch();
    void sendFrame();
    void sendBursts(QList<QByteArray> bursts);
    void pullOut();

    Settings settings;
    SerialLine line;
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
