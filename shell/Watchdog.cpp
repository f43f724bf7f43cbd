#include "shell/Watchdog.h"

#include <QCoreApplication>
#include <QEvent>
#include <chrono>
#include <systemd/sd-daemon.h>

namespace {
// So many beats fit into the service manager's patience that one held up by the longest wait of the
// Wi-Fi page still comes in time.
constexpr int beatsOfPatience = 4;
} // namespace

Watchdog::Watchdog(QWidget &screen)
    : window(screen)
{
    connect(&beat, &QTimer::timeout, this, [] { sd_notify(0, "WATCHDOG=1"); });
    qApp->installEventFilter(this);
}

bool Watchdog::eventFilter(QObject *watched, QEvent *event)
{
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (event->type() == QEvent::Paint && widget && widget->window() == &window) {
        qApp->removeEventFilter(this);
        // The frame is on the screen when the event that paints all of it is done.
        QMetaObject::invokeMethod(this, &Watchdog::start, Qt::QueuedConnection);
    }
    return false;
}

void Watchdog::start()
{
    sd_notify(0, "READY=1");
    std::uint64_t microseconds = 0;
    if (sd_watchdog_enabled(0, &microseconds) > 0)
        beat.start(std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::microseconds(microseconds) / beatsOfPatience));
}
