#include "pages/Page.h"

#include "pages/Ground.h"

#include <QStackedWidget>
#include <QTimer>
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
    for (Page *behind : findChildren<Page *>()) {
        if (!behind->existsOnce())
            behind->empty();
    }
    for (QWidget *widget : formWidgets())
        widget->hide();
    QTimer::singleShot(pictureTime, this, &Page::deleteWidgets);
}

void Page::deleteWidgets()
{
    for (Page *behind : findChildren<Page *>()) {
        behind->setParent(this);
        // Its new place in the tree has brought it back for one that had lost it.
        if (!behind->existsOnce())
            dropStyleOf(behind);
    }
    dropStyleOf(this);
    for (QWidget *widget : formWidgets())
        widget->deleteLater();
}

// Kept[pages-never-deleted]: the page itself stays, and those behind it.
QList<QWidget *> Page::formWidgets() const
{
    auto widgets = findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    widgets.removeIf([](const QWidget *widget) { return qobject_cast<const Page *>(widget); });
    return widgets;
}

void Page::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (emptied)
        deleteWidgets();
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
