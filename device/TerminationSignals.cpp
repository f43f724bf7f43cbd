#include "device/TerminationSignals.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {
std::array<int, 2> signalPipe{-1, -1};
std::atomic<bool> hasAny{false};

int openPipe()
{
    if (::pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        qFatal("no pipe for signals");
    return signalPipe[0];
}

// Nothing but write() and lock-free atomics is allowed here.
void handleSignal(int)
{
    hasAny = true;
    const int savedError = errno;
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], "s", 1);
    errno = savedError;
}
} // namespace

TerminationSignals::TerminationSignals(QObject *parent)
    : QObject(parent)
    , notifier(openPipe(), QSocketNotifier::Read)
{
    connect(&notifier, &QSocketNotifier::activated, this, &TerminationSignals::readPipe);
    struct sigaction action
    {
    };
    action.sa_handler = handleSignal;
    action.sa_flags = SA_RESTART;
    for (const int signalNumber : {SIGINT, SIGTERM, SIGHUP})
        ::sigaction(signalNumber, &action, nullptr);
}

bool TerminationSignals::haveArrived()
{
    return hasAny;
}

void TerminationSignals::readPipe()
{
    // One by one: a second signal means something else than the first, however soon it follows.
    char byte = 0;
    while (::read(signalPipe[0], &byte, 1) > 0)
        emit received();
}
