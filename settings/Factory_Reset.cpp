#include "settings/Factory_Reset.h"

#include "settings/FactoryReset_Confirm.h"
#include "ui_Factory_Reset.h"

Factory_Reset::Factory_Reset(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    connect(ui->page_confirmResetFactory, &PageHolder::signal_pageLeft, this,
            &Factory_Reset::back_default_page);
}

void Factory_Reset::on_button_confirm_clicked()
{
    if (ui)
        ui->page_confirmResetFactory->open<FactoryReset_Confirm>();
}
