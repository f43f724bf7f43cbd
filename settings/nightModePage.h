#pragma once

#include "pages/FormPage.h"

namespace Ui {
class nightModePage;
}

/// Night mode: a switch and, while it is on, the rows of its start and finish time.
///
/// A display only: neither the switch nor a time is stored or acted upon. GUI thread.
class nightModePage : public FormPage<Ui::nightModePage>
{
    Q_OBJECT

public:
    explicit nightModePage(QWidget *parent = nullptr);

public slots:
    /// Shows the two time rows while the switch is on.
    void SetTimeControlHideSlt();
    void on_button_startTime_clicked();
    void on_button_finishTime_clicked();
    /// Does nothing: the moon beside the switch is a sign.
    void on_button_setNightMode_clicked() {}

private:
    /// Does nothing: the form says it all.
    void InitUi() {}
};
