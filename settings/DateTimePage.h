#pragma once

#include "pages/FormPage.h"

namespace Ui {
class DateTimePage;
}

/// Wheels for a date and a time of day. What they are turned to leaves the page nowhere.
///
/// The page exists once. Before every showing call Set24Hour() and list_init(). GUI thread.
class DateTimePage : public SinglePage<DateTimePage, Ui::DateTimePage>
{
    Q_OBJECT

public:
    explicit DateTimePage(QWidget *parent = nullptr);

    /// Chooses between an hour wheel of 24 and one of 12 hours beside a wheel for the half of the
    /// day. Takes effect with the next list_init().
    void Set24Hour(bool use) { is24Hour = use; }
    /// Loads the wheels afresh, turned to this moment.
    void list_init();

    void on_button_back_clicked() override;

private:
    bool is24Hour = true;
};
