#include "pages/SlideIn.h"

#include "pages/Look.h"

#include <QWidget>
#include <chrono>

namespace {
using namespace std::chrono_literals;

constexpr auto slideTime = 400ms;
} // namespace

QPropertyAnimation *slideIn(QWidget *holder)
{
    auto *animation = new QPropertyAnimation(holder, "pos");
    QObject::connect(holder, &QObject::destroyed, animation, &QObject::deleteLater);
    animation->setDuration(int(slideTime.count()));
    animation->setEasingCurve(QEasingCurve::InCurve);
    animation->setStartValue(QPoint(Look::screen.width(), 0));
    animation->setEndValue(QPoint(0, 0));
    holder->move(Look::screen.width(), 0);
    holder->show();
    holder->raise();
    // Kept[animation-left-behind]: it stays after its run, one for each opening.
    animation->start(QAbstractAnimation::KeepWhenStopped);
    return animation;
}
