#pragma once

#include "pages/Page.h"

#include <type_traits>

/// Tells that its arguments exist, which are named and not used: without one of them the program
/// does not compile.
constexpr bool exist(auto... /*names*/)
{
    return true;
}

/// Tells whether @p Class, which has these names, is a @p Base and can be made for a parent.
template <class Class, class Base = QWidget>
constexpr bool has(auto... /*names*/)
{
    return std::is_base_of_v<Base, Class> && std::is_constructible_v<Class, std::nullptr_t>;
}

/// Tells whether @p Class, which has these names, can be opened and left as a page.
template <class Class>
constexpr bool isPage(auto... names)
{
    return has<Class, Page>(&Class::signal_backDefaultPage, &Class::on_button_back_clicked,
                            names...);
}
