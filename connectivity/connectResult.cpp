#include "connectivity/connectResult.h"

#include "ui_connectResult.h"

connectResult::connectResult(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    for (QLabel *part : {ui->icon_connectSuccess, ui->label_connectSuccess, ui->icon_disconnect,
                         ui->label_disconnectSuccess, ui->label_noWifi})
        part->hide();
    show_success_fail();
}

void connectResult::show_success_fail() {}
