#pragma once

#include "pages/FormPage.h"

namespace Ui {
class SetTimePage;
}

/// Time and date: the clock's form, the time zone, and the way to the pages that choose them.
///
/// A display only: nothing chosen here reaches a clock or is stored. GUI thread.
class SetTimePage : public FormPage<Ui::SetTimePage>
{
    Q_OBJECT

public:
    explicit SetTimePage(QWidget *parent = nullptr);

public slots:
    void on_button_timeZone_clicked();
    void on_button_dateTime_clicked();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void showTime();
};
