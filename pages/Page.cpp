#include "pages/Page.h"

#include "pages/Ground.h"

#include <utility>

Page::Page(QWidget *parent)
    : QWidget(parent)
{
    fillGround(this);
}

void Page::empty()
{
    if (std::exchange(emptied, true))
        return;
    beforeEmptying();
    setUpdatesEnabled(false);
    dropForm();
    const auto widgets = findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (Page *behind : findChildren<Page *>()) {
        behind->setParent(this);
        if (!behind->existsOnce())
            behind->empty();
    }
    // Kept[pages-never-deleted]: the page itself stays, and those behind it.
    for (QWidget *widget : widgets)
        widget->deleteLater();
}

void Page::leave()
{
    if (!emptied)
        emit signal_backDefaultPage();
}
