#include "settings/DateTimePage.h"

#include "settings/TimeSpinners.h"
#include "ui_DateTimePage.h"

DateTimePage::DateTimePage(QWidget *parent)
    : SinglePage(parent)
{
    ui->setupUi(this);
}

void DateTimePage::list_init()
{
    ui->widget_date->move(is24Hour ? 88 : 12, ui->widget_date->y());
    ui->widget_hour->move(is24Hour ? 452 : 362, ui->widget_hour->y());
    ui->widget_min->move(is24Hour ? 612 : 512, ui->widget_min->y());
    loadSpinner(ui->widget_date, QStringLiteral("date"), 0);
    const TimeSpinners spinners{ui->widget_hour, ui->widget_min, ui->widget_amp};
    spinners.load(is24Hour, QTime::currentTime());
    ui->widget_date->setFocus();
    update();
}

void DateTimePage::on_button_back_clicked()
{
    for (auto *wheel : findChildren<QmlApplicationViewer *>())
        wheel->hide();
    leave();
}
