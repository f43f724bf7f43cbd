#pragma once

#include "pages/EmptyPage.h"
#include "pages/Ground.h"

#include <QStackedWidget>

/// Shows @p page above the pages of earlier visits to @p holder, connects its way back to @p goBack
/// of @p opener and makes @p holder the current page of @p stack.
///
/// The page is shown explicitly, so that it also appears when its holder is on the screen already.
/// It lies on an opaque ground.
template <class Page, class Opener>
void showPage(Page *page, Opener *opener, QStackedWidget *stack, QWidget *holder,
              void (Opener::*goBack)())
{
    fillGround(page);
    QObject::connect(page, &Page::signal_backDefaultPage, opener, goBack);
    page->raise();
    page->show();
    stack->setCurrentWidget(holder);
}

/// The way every sub-page is opened.
///
/// Builds a fresh @p Page inside @p holder and shows it. When the page is left, by its
/// signal_backDefaultPage(), its widgets go, see emptyPage(); the page itself stays as an empty
/// frame until the opener goes. What the page still does then must be done by objects that know
/// nothing of its widgets. Returns the new page, owned by @p holder.
template <class Page, class Opener>
Page *openPage(Opener *opener, QStackedWidget *stack, QWidget *holder, void (Opener::*goBack)())
{
    auto *page = new Page(holder);
    showPage(page, opener, stack, holder, goBack);
    QObject::connect(page, &Page::signal_backDefaultPage, page, [page] { emptyPage(page); });
    return page;
}

/// The one instance of a @p Page that exists once, moved into @p holder; built on the first call.
/// To be shown with showPage(). Owned by its present holder; Page::instance must become null when
/// the page goes. An opener that is emptied when it is left hands it on with handOnSinglePage().
template <class Page>
Page *singlePage(QWidget *holder)
{
    if (Page::instance == nullptr)
        Page::instance = new Page(holder);
    else if (Page::instance->parentWidget() != holder)
        Page::instance->setParent(holder);
    return Page::instance;
}

/// Moves the one @p Page from anywhere inside @p opener to the widget around it, out of sight, and
/// ends its way back there.
template <class Page>
void handOnSinglePage(QWidget *opener)
{
    if (Page::instance == nullptr)
        return;
    QObject::disconnect(Page::instance, nullptr, opener, nullptr);
    if (opener->isAncestorOf(Page::instance))
        Page::instance->setParent(opener->parentWidget());
}
