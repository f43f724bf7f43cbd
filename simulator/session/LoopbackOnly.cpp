// Preloaded into the program on a development machine: a server that asks for every address gets
// the loopback address, so that the simulated screen is never offered to the network.

#include <arpa/inet.h>
#include <cstring>
#include <dlfcn.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace {
using BindFunction = int (*)(int, const sockaddr *, socklen_t);

BindFunction libraryBind()
{
    return reinterpret_cast<BindFunction>(dlsym(RTLD_NEXT, "bind"));
}
} // namespace

extern "C" int bind(int socket, const sockaddr *address, socklen_t length) noexcept
{
    static const BindFunction next = libraryBind();
    if (address->sa_family == AF_INET6 && length >= sizeof(sockaddr_in6)) {
        sockaddr_in6 ours;
        std::memcpy(&ours, address, sizeof ours);
        if (IN6_IS_ADDR_UNSPECIFIED(&ours.sin6_addr)) {
            // The IPv4 loopback address in its IPv6 form: a dual-stack socket then answers
            // 127.0.0.1.
            inet_pton(AF_INET6, "::ffff:127.0.0.1", &ours.sin6_addr);
            return next(socket, reinterpret_cast<const sockaddr *>(&ours), sizeof ours);
        }
    }
    if (address->sa_family == AF_INET && length >= sizeof(sockaddr_in)) {
        sockaddr_in ours;
        std::memcpy(&ours, address, sizeof ours);
        if (ours.sin_addr.s_addr == htonl(INADDR_ANY)) {
            ours.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
            return next(socket, reinterpret_cast<const sockaddr *>(&ours), sizeof ours);
        }
    }
    return next(socket, address, length);
}
