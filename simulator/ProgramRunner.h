#pragma once

#include <QList>
#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTimer>
#include <sys/types.h>

namespace simulator {

/// Runs one command in a process group of its own and leaves nothing of it behind, not even what
/// left the group. One object per process: every other child of this process counts as left behind.
class ProgramRunner : public QObject
{
    Q_OBJECT
public:
    /// Takes the program and its arguments in @p command, not empty. It runs in the current working
    /// directory, with the standard input and outputs of this process.
    ProgramRunner(QStringList command, const QProcessEnvironment &environment,
                  QObject *parent = nullptr);
    /// Kills what still runs.
    ~ProgramRunner() override;

    /// Starts the command, which must not be running. False, and the reason in errorString(), where
    /// it cannot be started.
    bool start();
    QString errorString() const;

    /// Asks the command and everything it started to end, and kills what has not done so three
    /// seconds later. Does nothing where it does not run or has been asked already.
    void stop();

    /// Kills the command and everything it started.
    void kill();

signals:
    /// The command has ended and nothing of it is left. @p status is its exit status, or 128 + the
    /// number of the signal that killed it.
    void ended(int status);

private:
    void finish();
    void sweep();
    void signalGroup(int signalNumber) const;

    QStringList commandLine;
    QProcess process;
    QTimer graceTimer;
    QTimer sweepTimer;
    QList<pid_t> askedToEnd;
    pid_t group = 0;
    bool isKilling = false;
    int exitStatus = 0;
};

} // namespace simulator
