#include "testkit/Touch.h"

#include <QGuiApplication>
#include <QPointingDevice>
#include <QStyleHints>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <climits>

namespace {
QPointingDevice *panel()
{
    static QPointingDevice *const device = QTest::createTouchDevice();
    return device;
}

// Touches go through the native window, so that Qt itself finds the widget under the finger and
// keeps the grab between press and release, as on the device.
QTest::QTouchEventSequence handOn(QWidget *window)
{
    return QTest::touchEvent(window->window()->windowHandle(), panel(), false);
}
} // namespace

void pressAt(QWidget *window, const QPoint &position, int doubleTapTime)
{
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(doubleTapTime);
    const QPoint beside = position + QPoint(60, 20);
    auto hand = handOn(window);
    hand.press(0, position).commit(false);
    // What another finger does meanwhile counts for nothing.
    hand.stationary(0).press(1, beside).commit(false);
    hand.stationary(0).release(1, beside).commit();
}

void moveTo(QWidget *window, const QPoint &position)
{
    handOn(window).move(0, position).commit();
}

void releaseAt(QWidget *window, const QPoint &position)
{
    handOn(window).release(0, position).commit();
}

void cancelAt(QWidget *window, const QPoint &position)
{
    // As Qt does: the window is told, then the mouse that stands for the finger is lifted.
    QTouchEvent cancel(QEvent::TouchCancel, panel());
    QCoreApplication::sendEvent(window->window()->windowHandle(), &cancel);
    releaseAt(window, position);
}

void tapAt(QWidget *window, const QPoint &position)
{
    pressAt(window, position);
    releaseAt(window, position);
}

void doubleTapAt(QWidget *window, const QPoint &position)
{
    tapAt(window, position);
    pressAt(window, position, INT_MAX);
    releaseAt(window, position);
}

void tap(QWidget *widget)
{
    tapAt(widget->window(), widget->mapTo(widget->window(), widget->rect().center()));
}

void drag(QWidget *window, const QPoint &from, const QPoint &to, int steps)
{
    pressAt(window, from);
    for (int step = 1; step <= steps; ++step)
        moveTo(window, from + (to - from) * step / steps);
    releaseAt(window, to);
}

QWidget *visibleChild(QWidget *root, const QString &objectName)
{
    const auto named = root->findChildren<QWidget *>(objectName);
    const auto found = std::ranges::find_if(named, &QWidget::isVisible);
    return found == named.end() ? nullptr : *found;
}

QAbstractButton *visibleButton(QWidget *root, const QString &text)
{
    const auto buttons = root->findChildren<QAbstractButton *>();
    const auto found = std::ranges::find_if(buttons, [&text](const QAbstractButton *button) {
        return button->isVisible() && button->text() == text;
    });
    return found == buttons.end() ? nullptr : *found;
}
