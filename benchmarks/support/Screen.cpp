#include "benchmarks/support/Screen.h"

#include <QCoreApplication>
#include <QTest>

void showOnScreen(QWidget *window)
{
    window->setGeometry(0, 0, 854, 480);
    window->show();
    if (!QTest::qWaitForWindowExposed(window))
        qFatal("no window");
}

void repaint()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

void pressMouse(QWidget *window, const QPoint &position)
{
    QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, position);
}

void moveMouse(QWidget *window, const QPoint &position)
{
    QTest::mouseMove(window->windowHandle(), position);
}

void releaseMouse(QWidget *window, const QPoint &position)
{
    QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, position);
}

void click(QWidget *widget)
{
    const QPoint middle = widget->mapTo(widget->window(), widget->rect().center());
    pressMouse(widget->window(), middle);
    releaseMouse(widget->window(), middle);
}
