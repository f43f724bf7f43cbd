#pragma once

#include "pages/Page.h"

#include <QPointer>

/// Opens pages in its place in a stack of pages: an empty page of the stack, promoted to this class
/// in the form. GUI thread.
class PageHolder : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Opens a fresh @p Opened in front: empties the page opened here before, builds the new one,
    /// shows it above the earlier ones and makes this the current page of the stack. Returns the
    /// page, owned by this holder.
    template <class Opened>
    Opened *open()
    {
        if (former)
            former->empty();
        auto *page = new Opened(this);
        former = page;
        present(page);
        return page;
    }

    /// Moves the one @p Single here, built on the first call, out of sight until present() shows
    /// it.
    template <class Single>
    Single *bring()
    {
        if (!Single::instance)
            Single::instance = new Single(this);
        else if (Single::instance->parentWidget() != this)
            Single::instance->setParent(this);
        return Single::instance;
    }

    /// Shows @p page, a child, above the others and makes this the current page of the stack. With
    /// every call for the same page, signal_pageLeft() tells once more that it was left.
    void present(Page *page);

signals:
    /// Tells that a page shown here was left. The way back to what was shown before is the
    /// receiver's.
    void signal_pageLeft();

private:
    QPointer<Page> former;
};
