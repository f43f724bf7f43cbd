#pragma once

#include "simulator/DeviceRoot.h"
#include "simulator/FirmwareServer.h"
#include "simulator/ParticleSensor.h"
#include "simulator/Scenario.h"

#include <QElapsedTimer>
#include <QMap>
#include <QObject>
#include <QProcessEnvironment>
#include <QTimer>
#include <memory>

namespace simulator {

/// The device around the program: its root, kept alive, its sensors and its firmware server.
class SimulatedDevice : public QObject
{
    Q_OBJECT
public:
    struct Settings
    {
        Scenario scenario;
        double speed = 1; ///< how much faster than the clock its curves run; above 0
        quint32 seed = 1; ///< the same seed gives the same run
    };

    SimulatedDevice(const QString &rootPath, Settings deviceSettings, QObject *parent = nullptr);

    /// Builds the root and starts everything. False, and the reason in @p problem, where that
    /// fails.
    bool start(QString *problem);

    const DeviceRoot &deviceRoot() const { return root; }

    /// Returns what the program finds the device by.
    QProcessEnvironment environment() const;

    /// Writes the same as lines for a shell.
    QString environmentLines() const;

private:
    QMap<QString, QString> variables() const;
    double now(const DayCurve &curve) const;
    void refresh();

    DeviceRoot root;
    Settings settings;
    FirmwareServer firmware;
    std::unique_ptr<ParticleSensor> sensor;
    StoreTrouble trouble;
    QElapsedTimer clock;
    QTimer refreshTimer;
    QRandomGenerator random;
    qsizetype refreshes = 0;
};

} // namespace simulator
