#include "settings/OptionFrame.h"

#include <QMouseEvent>
#include <chrono>
#include <cstdlib>

namespace {
using namespace std::chrono_literals;

constexpr auto holdLimit = 1000ms;
constexpr int dragLimit = 100;
} // namespace

OptionFrame::OptionFrame(QWidget *parent)
    : QFrame(parent)
{
    holdTimer.setSingleShot(true);
    // A coarse timer may be 50 ms early: a tap of 970 ms would be none.
    holdTimer.setTimerType(Qt::PreciseTimer);
    holdTimer.setInterval(holdLimit);
    connect(&holdTimer, &QTimer::timeout, this, &OptionFrame::change_status);
}

void OptionFrame::change_status()
{
    pressed = false;
}

void OptionFrame::mousePressEvent(QMouseEvent *event)
{
    pressed = true;
    holdTimer.start();
    if (event->button() == Qt::LeftButton)
        pressPosition = event->globalPosition().toPoint();
    // Kept[tile-hands-on]: the frame below gets presses and releases as well.
    QFrame::mousePressEvent(event);
}

void OptionFrame::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        releasePosition = event->globalPosition().toPoint();
        const QPoint moved = releasePosition - pressPosition;
        if (pressed && std::abs(moved.x()) < dragLimit && std::abs(moved.y()) < dragLimit)
            emit clicked();
    }
    QFrame::mouseReleaseEvent(event);
}
