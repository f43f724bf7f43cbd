#pragma once

#include <QObject>
#include <QSocketNotifier>

namespace simulator {

/// Brings SIGINT, SIGTERM and SIGHUP into the event loop. One object per process.
class TerminationSignals : public QObject
{
    Q_OBJECT
public:
    explicit TerminationSignals(QObject *parent = nullptr);

signals:
    void received();

private:
    void readPipe();

    QSocketNotifier notifier;
};

} // namespace simulator
