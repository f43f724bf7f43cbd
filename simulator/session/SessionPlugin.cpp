#include "simulator/session/SessionPlugin.h"

#include "simulator/session/Witness.h"

#include <QApplication>
#include <QDebug>
#include <QSocketNotifier>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <sys/socket.h>
#include <unistd.h>

// Qt's own entry for its test library.
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow *window, const QPointF &local, const QPointF &global,
                                      Qt::MouseButtons state, Qt::MouseButton button,
                                      QEvent::Type type, Qt::KeyboardModifiers modifiers,
                                      int timestamp);

namespace {
int signalPipe[2];

// Only write() is safe in a signal handler; the event loop does the rest.
void forwardSignal(int)
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = write(signalPipe[0], &byte, 1);
}

QWidget *screen()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        // A widget inside a graphics view has no parent either, but stands on another one.
        if (window->isVisible() && !window->graphicsProxyWidget())
            return window;
    }
    return nullptr;
}

void endSession()
{
    const QString file = qEnvironmentVariable("ZELL_SESSION_SHOT");
    QWidget *window = screen();
    if (window && !file.isEmpty() && !window->grab().save(file))
        qDebug() << "cannot save the picture" << file;
    QCoreApplication::quit();
}

// As the platform does, so that Qt itself finds what lies under the finger.
void tapAt(const QPoint &place)
{
    QWidget *window = screen();
    if (!window)
        return;
    const QPointF onScreen = window->mapToGlobal(place);
    qt_handleMouseEvent(window->windowHandle(), place, onScreen, Qt::LeftButton, Qt::LeftButton,
                        QEvent::MouseButtonPress, {}, 0);
    qt_handleMouseEvent(window->windowHandle(), place, onScreen, Qt::NoButton, Qt::LeftButton,
                        QEvent::MouseButtonRelease, {}, 0);
}

void planTaps(QObject *session)
{
    for (const QString &tap : qEnvironmentVariable("ZELL_SESSION_TAPS").split(QLatin1Char(' '))) {
        int second = 0;
        QPoint place;
        if (std::sscanf(qPrintable(tap), "%d:%d,%d", &second, &place.rx(), &place.ry()) == 3)
            QTimer::singleShot(std::chrono::seconds(second), session, [place] { tapAt(place); });
    }
}
} // namespace

QObject *SessionPlugin::create(const QString &, const QString &)
{
    // Without a parent: the application deletes what its generic plug-ins created.
    auto *session = new QObject;
    const std::chrono::seconds length(qEnvironmentVariableIntValue("ZELL_SESSION_SECONDS"));
    if (length.count() > 0)
        QTimer::singleShot(length, session, endSession);

    if (qEnvironmentVariableIsSet("ZELL_SESSION_WATCH"))
        new Witness(session);
    planTaps(session);

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
