#pragma once

#include <QObject>
#include <QSocketNotifier>

/// Brings SIGINT, SIGTERM and SIGHUP into the event loop. One object per process.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);

    /// Tells whether any has arrived, also before the event loop turns again: what waits without
    /// turning it shall give up. Thread-safe.
    static bool haveArrived();

signals:
    void received();

private:
    void readPipe();

    QSocketNotifier notifier;
};
