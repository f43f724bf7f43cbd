#include "settings/nightModePage.h"

#include "pages/PagePattern.h"
#include "pages/SwitchCaptions.h"
#include "settings/TimeSpinners.h"
#include "settings/timePage.h"
#include "ui_nightModePage.h"

nightModePage::nightModePage(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::nightModePage>())
{
    ui->setupUi(this);
    captionSwitch(ui->checkBox_nightMode, ui->button_close, ui->button_on);
    connect(ui->checkBox_nightMode, &QCheckBox::clicked, this,
            &nightModePage::SetTimeControlHideSlt);
    InitUi();
    SetTimeControlHideSlt();
    readySpinnersSoon();
}

nightModePage::~nightModePage() = default;

void nightModePage::SetTimeControlHideSlt()
{
    const bool on = ui->checkBox_nightMode->isChecked();
    ui->frame_startTime->setVisible(on);
    ui->frame_finishTime->setVisible(on);
    update();
}

void nightModePage::on_button_startTime_clicked()
{
    openTimePage();
}

void nightModePage::on_button_finishTime_clicked()
{
    openTimePage();
}

void nightModePage::openTimePage()
{
    openPage<timePage>(this, ui->stackedWidget, ui->page_time, &nightModePage::back_default_page);
}

void nightModePage::back_default_page()
{
    ui->stackedWidget->setCurrentWidget(ui->page_default);
}

void nightModePage::on_button_back_clicked()
{
    emit signal_backDefaultPage();
}
