#pragma once

#include <QWidget>
#include <functional>

/// Calls functions of @p object that take no arguments.
template <class Class, class... Functions>
void call(Class &object, Functions... functions)
{
    (static_cast<void>(std::invoke(functions, object)), ...);
}

/// Connects signals of @p sender that have no arguments.
template <class Class, class... Signals>
void listen(const Class *sender, Signals... signalsOfSender)
{
    (QObject::connect(sender, signalsOfSender, sender, [] {}), ...);
}

/// Uses @p Page as the page that opens it does.
template <class Page>
Page &opened(QWidget *holder)
{
    auto *page = new Page(holder);
    listen(page, &Page::signal_backDefaultPage);
    page->on_button_back_clicked();
    return *page;
}
