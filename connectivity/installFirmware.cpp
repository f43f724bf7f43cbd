#include "connectivity/installFirmware.h"

#include "ui_installFirmware.h"

installFirmware::installFirmware(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    ui->progressBar_install->setTextVisible(false);
}
