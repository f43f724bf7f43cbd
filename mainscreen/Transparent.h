#pragma once

#include <QWidget>

/// Gives @p widget a window colour that paints nothing, so that what lies below shows through.
inline void makeTransparent(QWidget *widget)
{
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Window, QColor(0, 255, 0, 0));
    widget->setPalette(palette);
}
