#include "pages/Page.h"

#include "pages/Ground.h"

#include <QStackedWidget>
#include <utility>

namespace {
// What the style sheet has worked out for a widget, some 10 KB, it drops only when it hears that
// the widget is destroyed. It may hear so from any widget that it listens to, and nobody else
// listens to this one. Taking the style away by unpolish() would have it worked out anew.
void dropStyleOf(QWidget *page)
{
    QWidget messenger;
    messenger.ensurePolished();
    emit messenger.destroyed(page);
}
} // namespace

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
        if (behind->existsOnce())
            continue;
        behind->empty();
        // Once more for one that was emptied before: its new place in the tree has brought it back.
        dropStyleOf(behind);
    }
    dropStyleOf(this);
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
