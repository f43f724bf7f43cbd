#pragma once

#include <QWidget>

/// Shows @p window in the size of the device's screen and waits until it is out.
void showOnScreen(QWidget *window);

/// Lets everything that waits in the event loop happen, up to the finished picture.
void repaint();
