#include "simulator/NotifySocket.h"

#include <QtGlobal>
#include <cstddef>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace simulator {
namespace {
constexpr qsizetype longestText = 4096;

int openSocket()
{
    const int listener = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    // Without a name of its own, the system finds a free one outside the file system.
    sockaddr_un nameless{};
    nameless.sun_family = AF_UNIX;
    if (::bind(listener, reinterpret_cast<const sockaddr *>(&nameless),
               sizeof nameless.sun_family) != 0)
        qFatal("no socket for notifications");
    return listener;
}
} // namespace

NotifySocket::NotifySocket(QObject *parent)
    : QObject(parent)
    , notifier(openSocket(), QSocketNotifier::Read)
{
    connect(&notifier, &QSocketNotifier::activated, this, &NotifySocket::read);
}

NotifySocket::~NotifySocket()
{
    notifier.setEnabled(false);
    ::close(int(notifier.socket()));
}

QByteArray NotifySocket::address() const
{
    sockaddr_un own{};
    socklen_t length = sizeof own;
    ::getsockname(int(notifier.socket()), reinterpret_cast<sockaddr *>(&own), &length);
    // A name outside the file system begins with a zero, written as an at sign.
    return '@' +
           QByteArray(own.sun_path + 1, qsizetype(length - offsetof(sockaddr_un, sun_path)) - 1);
}

void NotifySocket::read()
{
    QByteArray text(longestText, '\0');
    const auto next = [&] {
        return ::recv(int(notifier.socket()), text.data(), size_t(text.size()), 0);
    };
    for (ssize_t length = next(); length > 0; length = next())
        emit received(text.first(length));
}

} // namespace simulator
