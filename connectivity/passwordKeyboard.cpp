#include "connectivity/passwordKeyboard.h"

#include "connectivity/KeyBorad.h"
#include "connectivity/NetworkName.h"
#include "connectivity/wifiConnectResult.h"
#include "ui_passwordKeyboard.h"

#include <QDebug>

passwordKeyboard::passwordKeyboard(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    network = ui->label_title->text();
    // Bound here, not by the form, which would look for a sender in on_entered_password as well.
    connect(ui->button_back, &QPushButton::clicked, this,
            &passwordKeyboard::on_button_back_clicked);
    ui->lineEdit->setEchoMode(QLineEdit::Password);
    auto *keyboard = new KeyBorad(ui->frame_keyboard);
    connect(keyboard, &KeyBorad::signal_commit, this, &passwordKeyboard::on_entered_password);
}

void passwordKeyboard::setNetwork(const QString &name)
{
    if (!ui)
        return;
    network = name;
    showName(name, ui->label_title);
}

void passwordKeyboard::on_entered_password()
{
    if (!ui)
        return;
    // Kept[password-dropped]: any will do, also an empty one.
    qDebug() << "check password backstage...";
    leave();
}

void passwordKeyboard::jump_wifiConnectResult_page()
{
    if (ui)
        ui->page_wifiConnectResult->open<wifiConnectResult>()->setNetwork(network);
}
