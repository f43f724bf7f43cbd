#include "settings/Backlight.h"

#include "device/DevicePath.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QTimer>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <sys/wait.h>

namespace {
using namespace std::chrono_literals;

// The command takes milliseconds. Every level holds the screen up while it hangs, and a finger on
// the slider asks for dozens of them; so after a hang there is a rest in which none goes out.
constexpr auto commandLimit = 1s;
constexpr auto restAfterHang = 2s;

int lastLevel = -1;
bool resting = false;
std::optional<int> waitingLevel;

bool wasEnded(int status)
{
    constexpr int statusOfKilled = 128 + SIGKILL;
    return WIFSIGNALED(status) || (WIFEXITED(status) && WEXITSTATUS(status) == statusOfKilled);
}

void rest()
{
    resting = true;
    QTimer::singleShot(restAfterHang, qApp, [] {
        resting = false;
        if (const std::optional<int> level = std::exchange(waitingLevel, std::nullopt))
            setBacklight(*level);
    });
}
} // namespace

void setBacklight(int level)
{
    if (resting) {
        waitingLevel = level;
        return;
    }
    // timeout ends whatever the command has started as well, and there is no shell left that would
    // report the end on its own.
    const QString command = QStringLiteral("exec timeout -s KILL %1 %2 %3 2>/dev/null")
                                .arg(commandLimit.count())
                                .arg(shellQuoted(devicePath(QStringLiteral("/bin/qtapp/baklight"))))
                                .arg(level);
    const int status = std::system(QFile::encodeName(command).constData());
    if (status == 0) {
        lastLevel = level;
        return;
    }
    qDebug("backlight command failed: level %d, status %d", level, status);
    if (wasEnded(status))
        rest();
}

int backlightLevel()
{
    return lastLevel;
}
