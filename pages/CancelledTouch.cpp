#include "pages/CancelledTouch.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <utility>

namespace {
// Farther off than any screen reaches, in the coordinates of any widget.
constexpr QPointF nowhere(-1e6, -1e6);
} // namespace

CancelledTouch::CancelledTouch(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool CancelledTouch::lifts(const QMouseEvent *event)
{
    return event->position().x() < nowhere.x() / 2;
}

bool CancelledTouch::eventFilter(QObject *watched, QEvent *event)
{
    // A touch that a window has used itself is followed by no release.
    if (event->type() == QEvent::TouchBegin || event->type() == QEvent::TouchCancel)
        cancelled = event->type() == QEvent::TouchCancel;
    if (event->type() != QEvent::MouseButtonRelease)
        return false;

    const auto *release = static_cast<QMouseEvent *>(event);
    if (watched->isWindowType() && std::exchange(cancelled, false)) {
        QMouseEvent away(QEvent::MouseButtonRelease, nowhere, nowhere, nowhere, release->button(),
                         release->buttons(), release->modifiers(), release->pointingDevice());
        return QCoreApplication::sendEvent(watched, &away);
    }
    // A button that is left this way would not tell that it was released.
    auto *button = qobject_cast<QAbstractButton *>(watched);
    if (button && button->isDown() && lifts(release)) {
        button->setDown(false);
        emit button->released();
    }
    return false;
}
