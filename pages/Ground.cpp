#include "pages/Ground.h"

#include <QPalette>
#include <QWidget>

void fillGround(QWidget *page)
{
    // The style sheet turns the filling off when it first meets a widget.
    page->ensurePolished();
    QPalette palette = page->palette();
    palette.setColor(QPalette::Window, QColor(33, 33, 33));
    page->setPalette(palette);
    page->setAutoFillBackground(true);
}
