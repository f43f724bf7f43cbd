#pragma once

#include <QWidget>

/// Shows @p window in the size of the device's screen and waits until it is out.
void showOnScreen(QWidget *window);

/// Lets everything that waits in the event loop happen, up to the finished picture.
void repaint();

/// The mouse that Qt makes of a finger. What is measured is the product: between two touches the
/// finger of the tests waits a millisecond.
void pressMouse(QWidget *window, const QPoint &position);
void moveMouse(QWidget *window, const QPoint &position);
void releaseMouse(QWidget *window, const QPoint &position);

/// Clicks the middle of @p widget through its window.
void click(QWidget *widget);
