#include "pages/TouchFrame.h"

#include "pages/Look.h"

#include <QAbstractButton>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <algorithm>
#include <chrono>
#include <cstdlib>

namespace {
using namespace std::chrono_literals;

constexpr auto holdLimit = 1000ms;
constexpr int dragLimit = 100;
} // namespace

TouchFrame::TouchFrame(QWidget *parent)
    : QFrame(parent)
{
    holdTimer.setSingleShot(true);
    // A coarse timer may be 50 ms early: a tap of 970 ms would be none.
    holdTimer.setTimerType(Qt::PreciseTimer);
    holdTimer.setInterval(holdLimit);
    connect(&holdTimer, &QTimer::timeout, this, &TouchFrame::change_status);
}

void TouchFrame::change_status()
{
    pressed = false;
    setLit(false);
}

bool TouchFrame::event(QEvent *event)
{
    // The form is whole and nothing of it has been seen.
    if (event->type() == QEvent::Polish) {
        for (auto *button : findChildren<QAbstractButton *>())
            button->installEventFilter(this);
    }
    return QFrame::event(event);
}

QAbstractButton *TouchFrame::ownButton() const
{
    const auto buttons = findChildren<QAbstractButton *>();
    const auto found = std::ranges::find_if(buttons, [](const QAbstractButton *button) {
        return button->isEnabled() && !button->testAttribute(Qt::WA_TransparentForMouseEvents);
    });
    return found == buttons.end() ? nullptr : *found;
}

bool TouchFrame::eventFilter(QObject * /*watched*/, QEvent *event)
{
    const bool isTouch = event->isSinglePointEvent();
    // What a widget ignores goes on to its parent.
    if (isTouch)
        event->ignore();
    return isTouch;
}

void TouchFrame::mousePressEvent(QMouseEvent *event)
{
    pressed = true;
    holdTimer.start();
    if (event->button() == Qt::LeftButton) {
        pressPosition = releasePosition = event->globalPosition().toPoint();
        setLit(true);
    }
    // Kept[tile-hands-on]: the frame below gets presses and releases as well.
    QFrame::mousePressEvent(event);
}

void TouchFrame::mouseMoveEvent(QMouseEvent *event)
{
    releasePosition = event->globalPosition().toPoint();
    setLit(pressed && isNear());
    QFrame::mouseMoveEvent(event);
}

void TouchFrame::mouseReleaseEvent(QMouseEvent *event)
{
    QFrame::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    releasePosition = event->globalPosition().toPoint();
    const bool isTap = pressed && isNear();
    change_status();
    if (!isTap)
        return;
    const QPointer<QAbstractButton> button = ownButton();
    emit clicked();
    if (button)
        button->click();
}

bool TouchFrame::isNear() const
{
    const QPoint moved = releasePosition - pressPosition;
    return std::abs(moved.x()) < dragLimit && std::abs(moved.y()) < dragLimit;
}

void TouchFrame::setLit(bool on)
{
    static const QMetaMethod tap = QMetaMethod::fromSignal(&TouchFrame::clicked);
    const bool wanted = on && !still && plateRadius > 0 && (isSignalConnected(tap) || ownButton());
    if (lit == wanted)
        return;
    lit = wanted;
    // At once: the release may be waiting already, and what it opens may take long. Going out can
    // wait for that.
    if (lit)
        repaint();
    else
        update();
}

void TouchFrame::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    if (!lit)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Look::light);
    paintLight(painter, plateRadius);
}

void TouchFrame::paintLight(QPainter &painter, int radius) const
{
    // Several rows lie on one card, whose corners round the first and the last of them.
    const bool isCard = property("role").toString() == QLatin1String("card");
    const QRect card = isCard ? contentsRect() : parentWidget()->contentsRect().translated(-pos());
    painter.drawRoundedRect(card, radius, radius);
}
