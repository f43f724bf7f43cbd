#pragma once

#include <QWidget>

/// Uses @p Page as the page that opens it does.
template <class Page>
Page *page(QWidget *holder)
{
    auto *opened = new Page(holder);
    QObject::connect(opened, &Page::signal_backDefaultPage, holder, &QWidget::close);
    opened->on_button_back_clicked();
    return opened;
}
