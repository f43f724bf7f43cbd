#include "simulator/SerialLine.h"

#include "simulator/DeviceRoot.h"

#include <QFile>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace simulator {
namespace {
// Sets the line to pass bytes as they are. Having been opened and closed once, it also tells from
// now on whether somebody has it open.
bool makeRaw(const char *device)
{
    const int line = ::open(device, O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (line < 0)
        return false;
    termios settings{};
    bool done = ::tcgetattr(line, &settings) == 0;
    ::cfmakeraw(&settings);
    done = done && ::tcsetattr(line, TCSANOW, &settings) == 0;
    ::close(line);
    return done;
}
} // namespace

SerialLine::SerialLine(const QString &link)
    : linkPath(link)
{
}

SerialLine::~SerialLine()
{
    pullOut();
}

bool SerialLine::plugIn()
{
    pullOut();
    terminal = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    std::array<char, 64> device{};
    const bool done = terminal >= 0 && ::grantpt(terminal) == 0 && ::unlockpt(terminal) == 0 &&
                      ::ptsname_r(terminal, device.data(), device.size()) == 0 &&
                      makeRaw(device.data()) && replaceLink(linkPath, device.data());
    if (!done)
        pullOut();
    return done;
}

void SerialLine::pullOut()
{
    if (terminal < 0)
        return;
    // The link first: nobody shall find a device that is already dead.
    QFile::remove(linkPath);
    ::close(terminal);
    terminal = -1;
}

bool SerialLine::isOpened() const
{
    pollfd line{.fd = terminal, .events = POLLOUT, .revents = 0};
    return isPluggedIn() && ::poll(&line, 1, 0) >= 0 && (line.revents & POLLHUP) == 0;
}

bool SerialLine::send(const QByteArray &burst)
{
    if (!isPluggedIn())
        return false;
    received();
    return isOpened() && ::write(terminal, burst.constData(), size_t(burst.size())) == burst.size();
}

QByteArray SerialLine::received()
{
    QByteArray bytes;
    std::array<char, 1024> chunk{};
    for (ssize_t size = 0; (size = ::read(terminal, chunk.data(), chunk.size())) > 0;)
        bytes.append(chunk.data(), size);
    return bytes;
}

} // namespace simulator
