#include "connectivity/passwordKeyboard.h"

#include "connectivity/KeyBorad.h"
#include "connectivity/wifiConnectResult.h"
#include "pages/Ground.h"
#include "ui_passwordKeyboard.h"

#include <QDebug>

passwordKeyboard::passwordKeyboard(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::passwordKeyboard>())
{
    ui->setupUi(this);
    // Bound here, not by the form, which would look for a sender in on_entered_password as well.
    connect(ui->button_back, &QPushButton::clicked, this,
            &passwordKeyboard::on_button_back_clicked);
    ui->lineEdit->setEchoMode(QLineEdit::Password);
    keyboard = new KeyBorad(ui->frame_keyboard);
    connect(keyboard, &KeyBorad::signal_commit, this, &passwordKeyboard::on_entered_password);
}

passwordKeyboard::~passwordKeyboard() = default;

void passwordKeyboard::on_button_back_clicked()
{
    emit signal_backDefaultPage();
}

void passwordKeyboard::on_entered_password()
{
    qDebug() << "check password backstage...";
    emit signal_backDefaultPage();
}

void passwordKeyboard::jump_wifiConnectResult_page()
{
    // The result page has no way back of its own; its arrow does nothing.
    auto *result = new wifiConnectResult(ui->page_wifiConnectResult);
    fillGround(result);
    result->show();
    ui->stackedWidget->setCurrentWidget(ui->page_wifiConnectResult);
}
