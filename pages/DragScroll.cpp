#include "pages/DragScroll.h"

#include <QMouseEvent>
#include <QScrollBar>
#include <chrono>

namespace {
constexpr std::chrono::milliseconds glideTime{500};

// On the screen: the coordinates of a touched widget that scrolls away would follow the finger.
int fingerY(QEvent *event)
{
    return static_cast<QMouseEvent *>(event)->globalPosition().toPoint().y();
}
} // namespace

DragScroll::DragScroll(QWidget *touched, QScrollBar *moved, QObject *parent)
    : QObject(parent)
    , surface(touched)
    , scrollBar(moved)
    , animation(moved, "value")
{
    animation.setDuration(int(glideTime.count()));
    animation.setEasingCurve(QEasingCurve::OutSine);
    surface->installEventFilter(this);
}

bool DragScroll::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != surface)
        return QObject::eventFilter(watched, event);

    switch (event->type()) {
    case QEvent::MouseButtonPress:
        pressY = fingerY(event);
        break;
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        glide(fingerY(event));
        break;
    default:
        break;
    }
    return false;
}

void DragScroll::glide(int y)
{
    animation.stop();
    animation.setStartValue(scrollBar->value());
    animation.setEndValue(scrollBar->value() - y + pressY);
    animation.start();
}
