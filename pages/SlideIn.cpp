#include "pages/SlideIn.h"

#include <QWidget>
#include <chrono>

namespace {
constexpr std::chrono::milliseconds slideTime{400};
constexpr int screenWidth = 854;
} // namespace

QPropertyAnimation *slideIn(QWidget *holder)
{
    auto *animation = new QPropertyAnimation(holder, "pos");
    QObject::connect(holder, &QObject::destroyed, animation, &QObject::deleteLater);
    animation->setDuration(int(slideTime.count()));
    animation->setEasingCurve(QEasingCurve::InCurve);
    animation->setStartValue(QPoint(screenWidth, 0));
    animation->setEndValue(QPoint(0, 0));
    holder->move(screenWidth, 0);
    holder->show();
    holder->raise();
    animation->start(QAbstractAnimation::KeepWhenStopped);
    return animation;
}
