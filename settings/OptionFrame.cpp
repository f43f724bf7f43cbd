#include "settings/OptionFrame.h"

#include <QMouseEvent>
#include <chrono>
#include <cstdlib>

namespace {
constexpr std::chrono::milliseconds holdLimit{1000};
constexpr int dragLimit = 100;
} // namespace

OptionFrame::OptionFrame(QWidget *parent)
    : QFrame(parent)
{
    holdTimer.setSingleShot(true);
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
