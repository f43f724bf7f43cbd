#include "simulator/ProgramRunner.h"

#include <QFile>
#include <csignal>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

using namespace std::chrono_literals;

namespace simulator {
namespace {
constexpr auto graceTime = 3s;
constexpr auto sweepPeriod = 10ms;
constexpr int killedBySignal = 128;

// Runs in the new process before the command does.
void prepareChild()
{
    ::setpgid(0, 0);
    // Should this process be killed outright, the command still ends.
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
}

// Children of this process: the command, and what its own dead children left behind.
QList<pid_t> childProcesses()
{
    QList<pid_t> pids;
    QFile file(QStringLiteral("/proc/self/task/%1/children").arg(::getpid()));
    if (file.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> words = file.readAll().simplified().split(' ');
        for (const QByteArray &word : words) {
            if (!word.isEmpty())
                pids.append(word.toInt());
        }
    }
    return pids;
}
} // namespace

ProgramRunner::ProgramRunner(QStringList command, const QProcessEnvironment &environment,
                             QObject *parent)
    : QObject(parent)
    , commandLine(std::move(command))
{
    // What the command leaves behind becomes a child of this process, which can then reap it.
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);

    process.setProgram(commandLine.first());
    process.setArguments(commandLine.sliced(1));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setInputChannelMode(QProcess::ForwardedInputChannel);
    process.setChildProcessModifier(prepareChild);
    graceTimer.setSingleShot(true);
    graceTimer.setInterval(graceTime);
    sweepTimer.setInterval(sweepPeriod);
    connect(&process, &QProcess::finished, this, &ProgramRunner::finish);
    connect(&graceTimer, &QTimer::timeout, this, &ProgramRunner::kill);
    connect(&sweepTimer, &QTimer::timeout, this, &ProgramRunner::sweep);
}

ProgramRunner::~ProgramRunner()
{
    process.disconnect(this);
    kill();
    process.waitForFinished();
}

bool ProgramRunner::start()
{
    process.start();
    if (!process.waitForStarted())
        return false;
    group = pid_t(process.processId());
    isKilling = false;
    askedToEnd.clear();
    return true;
}

QString ProgramRunner::errorString() const
{
    return process.errorString();
}

void ProgramRunner::stop()
{
    if (group == 0 || graceTimer.isActive())
        return;
    signalGroup(SIGTERM);
    signalGroup(SIGCONT); // one that was halted must hear of it, too
    graceTimer.start();
}

void ProgramRunner::kill()
{
    isKilling = true;
    signalGroup(SIGKILL);
}

void ProgramRunner::finish()
{
    exitStatus =
        process.exitCode() + (process.exitStatus() == QProcess::CrashExit ? killedBySignal : 0);
    stop(); // what it may have left running
    sweepTimer.start();
    sweep();
}

void ProgramRunner::sweep()
{
    while (::waitpid(-1, nullptr, WNOHANG) > 0) {
    }
    const QList<pid_t> left = childProcesses();
    for (const pid_t child : left) {
        if (isKilling) {
            ::kill(child, SIGKILL);
        } else if (!askedToEnd.contains(child)) {
            ::kill(child, SIGTERM);
            askedToEnd.append(child);
        }
    }
    if (!left.isEmpty() || ::kill(-group, 0) == 0)
        return;
    sweepTimer.stop();
    graceTimer.stop();
    group = 0;
    emit ended(exitStatus);
}

void ProgramRunner::signalGroup(int signalNumber) const
{
    if (group != 0)
        ::kill(-group, signalNumber);
}

} // namespace simulator
