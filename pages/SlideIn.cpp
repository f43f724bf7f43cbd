#include "pages/SlideIn.h"

#include "pages/Look.h"

#include <QWidget>
#include <chrono>

namespace {
constexpr std::chrono::milliseconds slideTime{400};
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
    animation->start(QAbstractAnimation::KeepWhenStopped);
    return animation;
}
