#pragma once

#include "pages/Page.h"

#include <memory>

/// Gives a page the form @p Form, a class made from a .ui file. It is complete in the page's source
/// file only, where the constructor notes how to delete it.
template <class Form>
class FormPage : public Page
{
protected:
    explicit FormPage(QWidget *parent)
        : Page(parent)
        , ui(new Form, [](Form *form) { delete form; })
    {
    }

    /// Null once the page has been emptied: every slot asks first.
    std::unique_ptr<Form, void (*)(Form *)> ui;

private:
    void dropForm() final { ui.reset(); }
};

/// Makes a page exist once: built by whoever opens it first, and moved to the holder of whoever
/// opens it next. It is never emptied.
template <class Class, class Form>
// The analysis does not see that the base, a template, has a virtual destructor.
class SinglePage : public FormPage<Form> // NOLINT(cppcoreguidelines-virtual-class-destructor)
{
public:
    ~SinglePage() override
    {
        if (instance == this)
            instance = nullptr;
    }

    /// The one page; null before its first use and once it is gone.
    static inline Class *instance = nullptr;

    bool existsOnce() const final { return true; }

protected:
    using FormPage<Form>::FormPage;
};
