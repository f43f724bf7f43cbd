#include "simulator/session/SessionPlugin.h"

#include <QApplication>
#include <QDebug>
#include <QSocketNotifier>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {
int signalPipe[2];

// Only write() is safe in a signal handler; the event loop does the rest.
void forwardSignal(int)
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = write(signalPipe[0], &byte, 1);
}

void endSession()
{
    const QString file = qEnvironmentVariable("ZELL_SESSION_SHOT");
    if (!file.isEmpty()) {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            // A widget inside a graphics view has no parent either, but stands on another one.
            const bool onScreen = window->isVisible() && !window->graphicsProxyWidget();
            if (onScreen && !window->grab().save(file))
                qDebug() << "cannot save the picture" << file;
        }
    }
    QCoreApplication::quit();
}
} // namespace

QObject *SessionPlugin::create(const QString &, const QString &)
{
    // Without a parent: the application deletes what its generic plug-ins created.
    auto *session = new QObject;
    const std::chrono::seconds length(qEnvironmentVariableIntValue("ZELL_SESSION_SECONDS"));
    if (length.count() > 0)
        QTimer::singleShot(length, session, endSession);

    if (socketpair(AF_UNIX, SOCK_STREAM, 0, signalPipe) == 0) {
        auto *notifier = new QSocketNotifier(signalPipe[1], QSocketNotifier::Read, session);
        QObject::connect(notifier, &QSocketNotifier::activated, session, [notifier] {
            notifier->setEnabled(false);
            endSession();
        });
        std::signal(SIGINT, forwardSignal);
        std::signal(SIGTERM, forwardSignal);
    }
    return session;
}
