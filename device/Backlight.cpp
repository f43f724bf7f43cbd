#include "device/Backlight.h"

#include "device/Command.h"
#include "device/DevicePath.h"

#include <QCoreApplication>
#include <utility>

namespace {
using namespace std::chrono_literals;

// The command takes milliseconds. Every level holds the screen up while it hangs, and a finger on
// the slider asks for dozens of them; so after a hang there is a rest in which none goes out, long
// enough for the second that the command has in all.
constexpr auto longestWait = 250ms;
constexpr auto restAfterHang = 2s;
} // namespace

Backlight &Backlight::ofDevice()
{
    auto *backlight = qApp->findChild<Backlight *>(QString(), Qt::FindDirectChildrenOnly);
    return backlight ? *backlight : *new Backlight(qApp);
}

Backlight::Backlight(QObject *parent)
    : QObject(parent)
{
    rest.setSingleShot(true);
    rest.setInterval(restAfterHang);
    connect(&rest, &QTimer::timeout, this, [this] {
        if (std::exchange(isWaiting, false))
            send();
    });
}

void Backlight::setLevel(int level)
{
    lastLevel = level;
    if (!isDark)
        passOn();
}

void Backlight::setDark(bool dark)
{
    isDark = dark;
    passOn();
}

void Backlight::passOn()
{
    if (rest.isActive())
        isWaiting = true;
    else
        send();
}

void Backlight::send()
{
    const QString tool = shellQuoted(devicePath(QStringLiteral("/bin/qtapp/baklight")));
    const QString command = QStringLiteral("%1 %2").arg(tool).arg(isDark ? lowest : lastLevel);
    if (runCommand(command, longestWait, AtLimit::EndLater) == CommandEnd::HitLimit)
        rest.start();
}
