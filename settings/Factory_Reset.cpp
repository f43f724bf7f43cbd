#include "settings/Factory_Reset.h"

#include "pages/PagePattern.h"
#include "settings/FactoryReset_Confirm.h"
#include "ui_Factory_Reset.h"

Factory_Reset::Factory_Reset(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::Factory_Reset>())
{
    ui->setupUi(this);
}

Factory_Reset::~Factory_Reset() = default;

void Factory_Reset::on_button_back_clicked()
{
    emit signal_backDefaultPage();
}

void Factory_Reset::on_button_confirm_clicked()
{
    openPage<FactoryReset_Confirm>(this, ui->stackedWidget, ui->page_confirmResetFactory,
                                   &Factory_Reset::back_default_page);
}

void Factory_Reset::back_default_page()
{
    ui->stackedWidget->setCurrentWidget(ui->page_default);
}
