#include "pages/Page.h"

#include "pages/Ground.h"

#include <QStackedWidget>
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

void Page::back_default_page()
{
    auto *stack = findChild<QStackedWidget *>(QString(), Qt::FindDirectChildrenOnly);
    if (stack && !emptied)
        stack->setCurrentIndex(0);
}

void Page::leave()
{
    if (!emptied)
        emit signal_backDefaultPage();
}
