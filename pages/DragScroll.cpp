#include "pages/DragScroll.h"

#include "pages/CancelledTouch.h"

#include <QAbstractScrollArea>
#include <QMouseEvent>
#include <QScrollBar>
#include <chrono>

namespace {
using namespace std::chrono_literals;

constexpr auto glideTime = 500ms;

// In the viewport, which stands still: the coordinates of a content that scrolls would follow the
// finger.
int fingerY(QAbstractScrollArea *area, QObject *touched, QEvent *event)
{
    const QPoint position = static_cast<QMouseEvent *>(event)->position().toPoint();
    return static_cast<QWidget *>(touched)->mapTo(area->viewport(), position).y();
}
} // namespace

DragScroll::DragScroll(QAbstractScrollArea *scrolled, QObject *parent)
    : QObject(parent)
    , area(scrolled)
    , animation(scrolled->verticalScrollBar(), "value")
{
    animation.setDuration(int(glideTime.count()));
    animation.setEasingCurve(QEasingCurve::OutSine);
}

bool DragScroll::follow(QObject *touched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        pressY = fingerY(area, touched, event);
        return true;
    case QEvent::MouseButtonRelease:
        if (CancelledTouch::lifts(static_cast<QMouseEvent *>(event))) {
            animation.stop();
            return true;
        }
        [[fallthrough]];
    case QEvent::MouseMove:
        glide(fingerY(area, touched, event));
        return true;
    default:
        return false;
    }
}

// Kept[accelerating-drag]: the point of the press does not move along.
void DragScroll::glide(int y)
{
    const int value = area->verticalScrollBar()->value();
    animation.stop();
    animation.setStartValue(value);
    animation.setEndValue(value - y + pressY);
    animation.start();
}
