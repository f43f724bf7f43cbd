#include "pages/DragScroll.h"

#include "pages/CancelledTouch.h"
#include "pages/ScrollThumb.h"
#include "pages/ScrolledPicture.h"

#include <QAbstractScrollArea>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>
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
    : QPropertyAnimation(scrolled->verticalScrollBar(), "value", parent)
    , area(scrolled)
{
    setDuration(int(glideTime.count()));
    setEasingCurve(QEasingCurve::OutSine);
    lightenThumb(scrolled->verticalScrollBar());
    connect(this, &DragScroll::finished, this, [this] { delete picture; });
}

bool DragScroll::follow(QObject *touched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        pressY = fingerY(area, touched, event);
        return true;
    case QEvent::MouseButtonRelease:
        if (CancelledTouch::lifts(static_cast<QMouseEvent *>(event))) {
            stop();
            delete picture;
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
    stop();
    setStartValue(value);
    setEndValue(value - y + pressY);
    start();
}

void DragScroll::updateCurrentValue(const QVariant &value)
{
    auto *bar = static_cast<QScrollBar *>(targetObject());
    if (!bar || state() == Stopped)
        return;
    const int wanted = std::clamp(value.toInt(), bar->minimum(), bar->maximum());
    if (wanted == bar->value())
        return;
    if (!picture)
        picture = new ScrolledPicture(area);
    picture->scrollTo(wanted);
}
