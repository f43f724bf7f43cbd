#pragma once

#include <QProcess>
#include <QStringList>

/// The real zell-simulator as a process of its own, in the current working directory.
class SimulatorProcess : public QProcess
{
public:
    /// Starts it with @p options and, where @p shellCommand is not empty, that command line in a
    /// shell.
    explicit SimulatorProcess(const QStringList &options, const QString &shellCommand = {});
    /// Interrupts it where it still runs, so that it takes its own root away.
    ~SimulatorProcess() override;

    /// Waits for the end; -1 where it does not come.
    int status();

    /// Waits until @p text stands in its standard output.
    bool says(const QByteArray &text);

    /// The value of @p variable among the lines printed without a command; waits for them.
    QString environmentValue(const QString &variable);

    void interrupt(int signalNumber);

    QByteArray output; ///< standard output so far
    QByteArray errors; ///< error output so far
};
