#include "device/Command.h"

#include "device/TerminationSignals.h"

#include <QDeadlineTimer>
#include <QDebug>
#include <QTimer>
#include <algorithm>
#include <csignal>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
using namespace std::chrono_literals;

constexpr auto timeToDie = 100ms;
constexpr auto laterIs = 750ms;
constexpr qint64 longestSleep = 100;

// Starts a shell that leads a process group of its own. 0 where that fails.
pid_t startShell(const QString &command)
{
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGDEF);
    // Qt ignores it once it has used the network: a pipe whose reader is gone would never end.
    sigset_t restored;
    sigemptyset(&restored);
    sigaddset(&restored, SIGPIPE);
    posix_spawnattr_setsigdefault(&attributes, &restored);

    QByteArray words[] = {"sh", "-c", command.toLocal8Bit()};
    char *arguments[] = {words[0].data(), words[1].data(), words[2].data(), nullptr};
    pid_t shell = 0;
    const int error = posix_spawn(&shell, "/bin/sh", nullptr, &attributes, arguments, environ);
    posix_spawnattr_destroy(&attributes);
    return error == 0 ? shell : 0;
}

// Whether process ends within limit and before this program is to end. A kernel that cannot tell
// lets it take its time.
bool endsWithin(std::chrono::milliseconds limit, pid_t process)
{
    pollfd end{int(syscall(SYS_pidfd_open, process, 0)), POLLIN, 0};
    if (end.fd < 0)
        return true;
    const QDeadlineTimer deadline(limit);
    // Awake now and then: it may be another thread that a signal reaches.
    while (end.revents == 0 && !deadline.hasExpired() && !TerminationSignals::haveArrived())
        poll(&end, 1, int(std::min<qint64>(deadline.remainingTime(), longestSleep)));
    close(end.fd);
    return end.revents != 0;
}

// Ends the group of a shell that nobody has waited for, so that its number is still taken.
void endGroup(pid_t shell)
{
    kill(-shell, SIGKILL);
    // One that hangs in a driver does not end even now.
    endsWithin(timeToDie, shell);
    waitpid(shell, nullptr, WNOHANG);
}
} // namespace

CommandEnd runCommand(const QString &command, std::chrono::milliseconds limit, AtLimit atLimit)
{
    const pid_t shell = startShell(command);
    int status = -1;
    if (shell == 0 || endsWithin(limit, shell)) {
        if (shell != 0)
            waitpid(shell, &status, 0);
        if (status == 0)
            return CommandEnd::Succeeded;
        qDebug() << "command failed, status" << status << command;
        return CommandEnd::Failed;
    }
    qDebug() << "command given up, limit" << limit.count() << "ms:" << command;
    if (atLimit == AtLimit::End)
        endGroup(shell);
    else if (atLimit == AtLimit::EndLater)
        QTimer::singleShot(laterIs, [shell] { endGroup(shell); });
    return CommandEnd::HitLimit;
}
