#pragma once

#include <QStackedWidget>

/// The way every sub-page is opened.
///
/// Builds a fresh @p Page inside @p holder, connects its way back to @p goBack of @p opener, shows
/// it above the pages of earlier visits (which stay until the opener goes) and makes @p holder the
/// current page of @p stack. The new page is shown explicitly, so that it also appears when its
/// holder is on the screen already. Returns the new page, owned by @p holder.
template <class Page, class Opener>
Page *openPage(Opener *opener, QStackedWidget *stack, QWidget *holder, void (Opener::*goBack)())
{
    auto *page = new Page(holder);
    QObject::connect(page, &Page::signal_backDefaultPage, opener, goBack);
    page->show();
    stack->setCurrentWidget(holder);
    return page;
}
