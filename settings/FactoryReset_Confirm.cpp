#include "settings/FactoryReset_Confirm.h"

#include "ui_FactoryReset_Confirm.h"

#include <QDebug>

FactoryReset_Confirm::FactoryReset_Confirm(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::FactoryReset_Confirm>())
{
    ui->setupUi(this);
    connect(ui->button_cancel, &QPushButton::clicked, this,
            &FactoryReset_Confirm::cancel_factoryReset);
    connect(ui->button_confirm, &QPushButton::clicked, this,
            &FactoryReset_Confirm::confirm_factoryReset);
}

FactoryReset_Confirm::~FactoryReset_Confirm() = default;

void FactoryReset_Confirm::cancel_factoryReset()
{
    emit signal_backDefaultPage();
}

void FactoryReset_Confirm::confirm_factoryReset()
{
    qDebug("start factory reset...");
}
