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
