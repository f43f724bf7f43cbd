#include "pages/PageHolder.h"

#include <QStackedWidget>

void PageHolder::present(Page *page)
{
    // Kept[back-told-again]: a page that exists once is connected anew at every opening.
    connect(page, &Page::signal_backDefaultPage, this, &PageHolder::signal_pageLeft);
    page->raise();
    // Explicitly: a page made while its holder is on the screen would stay hidden.
    page->show();
    if (auto *stack = qobject_cast<QStackedWidget *>(parentWidget()))
        stack->setCurrentWidget(this);
}
