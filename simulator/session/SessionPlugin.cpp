#include "simulator/session/SessionPlugin.h"

#include "simulator/session/Witness.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDebug>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <chrono>
#include <cstdio>

// Qt's own entry for its test library.
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow *window, const QPointF &local, const QPointF &global,
                                      Qt::MouseButtons state, Qt::MouseButton button,
                                      QEvent::Type type, Qt::KeyboardModifiers modifiers,
                                      int timestamp);

namespace {
QWidget *screen()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        // A widget inside a graphics view has no parent either, but stands on another one.
        if (window->isVisible() && !window->graphicsProxyWidget())
            return window;
    }
    return nullptr;
}

void savePicture()
{
    const QString file = qEnvironmentVariable("ZELL_SESSION_SHOT");
    QWidget *window = screen();
    if (window && !file.isEmpty() && !window->grab().save(file))
        qDebug() << "cannot save the picture" << file;
}

// As the platform does, so that Qt itself finds what lies under the finger.
void touch(const QPoint &from, const QPoint &to)
{
    QWidget *window = screen();
    if (!window)
        return;
    qt_handleMouseEvent(window->windowHandle(), from, window->mapToGlobal(from), Qt::LeftButton,
                        Qt::LeftButton, QEvent::MouseButtonPress, {}, 0);
    qt_handleMouseEvent(window->windowHandle(), to, window->mapToGlobal(to), Qt::NoButton,
                        Qt::LeftButton, QEvent::MouseButtonRelease, {}, 0);
}

void planTaps(QObject *session)
{
    for (const QString &tap : qEnvironmentVariable("ZELL_SESSION_TAPS").split(QLatin1Char(' '))) {
        int second = 0;
        QPoint from;
        QPoint to;
        const int fields = std::sscanf(qPrintable(tap), "%d:%d,%d-%d,%d", &second, &from.rx(),
                                       &from.ry(), &to.rx(), &to.ry());
        if (fields == 3)
            to = from;
        if (fields == 3 || fields == 5)
            QTimer::singleShot(std::chrono::seconds(second), session,
                               [from, to] { touch(from, to); });
    }
}

// A call may wait, turning the event loop or not; the next one follows when it is back.
void callNext(QObject *session, QStringList calls)
{
    if (calls.isEmpty())
        return;
    const QStringList call = calls.takeFirst().split('.');
    for (QWidget *widget : QApplication::allWidgets()) {
        if (widget->objectName() != call.first())
            continue;
        if (auto *list = qobject_cast<QAbstractItemView *>(widget))
            list->setCurrentIndex(list->model()->index(call.last().toInt(), 0));
        else
            QMetaObject::invokeMethod(widget, call.last().toLatin1());
    }
    QTimer::singleShot(0, session, [=] { callNext(session, calls); });
}
} // namespace

QObject *SessionPlugin::create(const QString &, const QString &)
{
    // Without a parent: the application deletes what its generic plug-ins created.
    auto *session = new QObject;
    const std::chrono::seconds length(qEnvironmentVariableIntValue("ZELL_SESSION_SECONDS"));
    if (length.count() > 0)
        QTimer::singleShot(length, session, [] {
            savePicture(); // quitting closes the windows first
            QCoreApplication::quit();
        });
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, session, savePicture);

    if (qEnvironmentVariableIsSet("ZELL_SESSION_WATCH"))
        new Witness(session);
    planTaps(session);
    const QStringList calls =
        qEnvironmentVariable("ZELL_SESSION_CALLS").split(',', Qt::SkipEmptyParts);
    QTimer::singleShot(0, session, [=] { callNext(session, calls); });
    return session;
}
