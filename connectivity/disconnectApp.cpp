#include "connectivity/disconnectApp.h"

#include "connectivity/connectResult.h"
#include "ui_disconnectApp.h"

disconnectApp::disconnectApp(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::disconnectApp>())
{
    ui->setupUi(this);
    connect(ui->button_cancel, &QPushButton::clicked, this, &disconnectApp::cancel_disconnectApp);
    connect(ui->button_confirm, &QPushButton::clicked, this, &disconnectApp::confirm_disconnectApp);
}

disconnectApp::~disconnectApp() = default;

void disconnectApp::cancel_disconnectApp()
{
    emit signal_backDefaultPage();
}

void disconnectApp::confirm_disconnectApp()
{
    connectResult::open(ui->stackedWidget, ui->page_connectResult);
}
