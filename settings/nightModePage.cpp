#include "settings/nightModePage.h"

#include "pages/SwitchCaptions.h"
#include "settings/TimeSpinners.h"
#include "settings/timePage.h"
#include "ui_nightModePage.h"

nightModePage::nightModePage(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    captionSwitch(ui->checkBox_nightMode, ui->button_close, ui->button_on);
    connect(ui->checkBox_nightMode, &QCheckBox::clicked, this,
            &nightModePage::SetTimeControlHideSlt);
    connect(ui->page_time, &PageHolder::signal_pageLeft, this, &nightModePage::back_default_page);
    InitUi();
    SetTimeControlHideSlt();
    readySpinnersSoon();
}

void nightModePage::SetTimeControlHideSlt()
{
    if (!ui)
        return;
    const bool on = ui->checkBox_nightMode->isChecked();
    ui->frame_startTime->setVisible(on);
    ui->frame_finishTime->setVisible(on);
    update();
}

void nightModePage::on_button_startTime_clicked()
{
    if (ui)
        ui->page_time->open<timePage>();
}

// Kept[night-mode-shown-only]: which of the two times is opened is not passed on.
void nightModePage::on_button_finishTime_clicked()
{
    on_button_startTime_clicked();
}
