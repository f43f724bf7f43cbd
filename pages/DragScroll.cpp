#include "pages/DragScroll.h"

#include <QMouseEvent>
#include <QScrollBar>
#include <chrono>

namespace {
constexpr std::chrono::milliseconds glideTime{500};
}

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
        pressY = static_cast<QMouseEvent *>(event)->position().toPoint().y();
        break;
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        glide(static_cast<QMouseEvent *>(event)->position().toPoint().y());
        break;
    default:
        break;
    }
    return false;
}

void DragScroll::glide(int fingerY)
{
    animation.stop();
    animation.setStartValue(scrollBar->value());
    animation.setEndValue(scrollBar->value() - fingerY + pressY);
    animation.start();
}
