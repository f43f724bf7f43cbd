#include "testkit/Touch.h"

#include <QTest>
#include <QWindow>

namespace {
// Events go through the native window, so that Qt itself finds the widget under the finger and
// keeps the grab between press and release, as on the device.
QWindow *nativeWindow(QWidget *widget)
{
    QWindow *window = widget->window()->windowHandle();
    Q_ASSERT(window);
    return window;
}
} // namespace

void pressAt(QWidget *window, const QPoint &position)
{
    QTest::mousePress(nativeWindow(window), Qt::LeftButton, {}, position);
}

void moveTo(QWidget *window, const QPoint &position)
{
    QTest::mouseMove(nativeWindow(window), position);
}

void releaseAt(QWidget *window, const QPoint &position)
{
    QTest::mouseRelease(nativeWindow(window), Qt::LeftButton, {}, position);
}

void tapAt(QWidget *window, const QPoint &position)
{
    pressAt(window, position);
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
