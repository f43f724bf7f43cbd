#include "settings/FactoryReset_Confirm.h"

#include "ui_FactoryReset_Confirm.h"

#include <QDebug>

FactoryReset_Confirm::FactoryReset_Confirm(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    connect(ui->button_cancel, &QPushButton::clicked, this,
            &FactoryReset_Confirm::cancel_factoryReset);
    connect(ui->button_confirm, &QPushButton::clicked, this,
            &FactoryReset_Confirm::confirm_factoryReset);
}

void FactoryReset_Confirm::cancel_factoryReset()
{
    leave();
}

// Kept[reset-told-only]: nothing is erased.
void FactoryReset_Confirm::confirm_factoryReset()
{
    if (ui)
        qDebug("start factory reset...");
}
