#include "testkit/Touch.h"

#include <QGuiApplication>
#include <QPointingDevice>
#include <QStyleHints>
#include <QTest>
#include <QWindow>
#include <climits>

namespace {
// Events go through the native window, so that Qt itself finds the widget under the finger and
// keeps the grab between press and release, as on the device.
QWindow *nativeWindow(QWidget *widget)
{
    QWindow *window = widget->window()->windowHandle();
    Q_ASSERT(window);
    return window;
}

QTest::QTouchEventSequence panel(QWidget *window)
{
    static QPointingDevice *const device = QTest::createTouchDevice();
    return QTest::touchEvent(nativeWindow(window), device, false);
}

// The second of two taps belongs to the first one where no more than doubleTap ms lie between.
void putDown(QWidget *window, const QPoint &position, int doubleTap)
{
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(doubleTap);
    const QPoint beside = position + QPoint(60, 20);
    auto hand = panel(window);
    hand.press(0, position).commit(false);
    // What another finger does meanwhile counts for nothing.
    hand.stationary(0).press(1, beside).commit(false);
    hand.stationary(0).release(1, beside).commit();
}
} // namespace

void pressAt(QWidget *window, const QPoint &position)
{
    // However fast a test taps, two taps are two taps.
    putDown(window, position, 0);
}

void moveTo(QWidget *window, const QPoint &position)
{
    panel(window).move(0, position).commit();
}

void releaseAt(QWidget *window, const QPoint &position)
{
    panel(window).release(0, position).commit();
}

void tapAt(QWidget *window, const QPoint &position)
{
    pressAt(window, position);
    releaseAt(window, position);
}

void doubleTapAt(QWidget *window, const QPoint &position)
{
    tapAt(window, position);
    putDown(window, position, INT_MAX);
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
    for (QWidget *child : root->findChildren<QWidget *>(objectName)) {
        if (child->isVisible())
            return child;
    }
    return nullptr;
}

QAbstractButton *visibleButton(QWidget *root, const QString &text)
{
    for (auto *button : root->findChildren<QAbstractButton *>()) {
        if (button->isVisible() && button->text() == text)
            return button;
    }
    return nullptr;
}
