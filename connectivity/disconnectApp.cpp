#include "connectivity/disconnectApp.h"

#include "connectivity/connectResult.h"
#include "ui_disconnectApp.h"

disconnectApp::disconnectApp(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    connect(ui->button_cancel, &QPushButton::clicked, this, &disconnectApp::cancel_disconnectApp);
    connect(ui->button_confirm, &QPushButton::clicked, this, &disconnectApp::confirm_disconnectApp);
}

void disconnectApp::cancel_disconnectApp()
{
    leave();
}

void disconnectApp::confirm_disconnectApp()
{
    if (ui)
        ui->page_connectResult->open<connectResult>();
}
