#pragma once

#include "device/TerminationSignals.h"
#include "simulator/NotifySocket.h"
#include "simulator/Options.h"
#include "simulator/ProgramRunner.h"
#include "simulator/SimulatedDevice.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTemporaryDir>
#include <QTimer>
#include <memory>

namespace simulator {

/// One run: the device, the command on it, restarts and the end.
class Session : public QObject
{
    Q_OBJECT
public:
    explicit Session(const Options &options, QObject *parent = nullptr);

    /// Starts the device and the command, or prints the environment where there is none. Where that
    /// is not possible it says why and ended() follows: 1 without a device, 127 without a command.
    void start();

signals:
    /// The run is over; @p status is to be the exit status of the simulator.
    void ended(int status);

private:
    bool startDevice();
    QProcessEnvironment environment();
    void startCommand();
    void onInterrupt();
    void onRequest();
    void onNotification(const QByteArray &text);
    void onSilence();
    void onCommandEnded(int status);
    bool takeRestartRequest();

    // Removed last, when nothing uses it any more.
    std::unique_ptr<QTemporaryDir> temporaryRoot;
    TerminationSignals interrupts;
    std::unique_ptr<SimulatedDevice> device;
    std::unique_ptr<ProgramRunner> runner;
    QFileSystemWatcher requestWatcher;
    NotifySocket notifications;
    QTimer patience;
    Options options;
    bool isEnding = false;
    bool isSilent = false;
};

} // namespace simulator
