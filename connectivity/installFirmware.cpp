#include "connectivity/installFirmware.h"

#include "ui_installFirmware.h"

installFirmware::installFirmware(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::installFirmware>())
{
    ui->setupUi(this);
    ui->progressBar_install->setTextVisible(false);
}

installFirmware::~installFirmware() = default;

void installFirmware::on_button_back_clicked()
{
    emit signal_backDefaultPage();
}
