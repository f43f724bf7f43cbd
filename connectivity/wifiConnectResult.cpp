#include "connectivity/wifiConnectResult.h"

#include "connectivity/NetworkName.h"
#include "ui_wifiConnectResult.h"

#include <QDebug>

wifiConnectResult::wifiConnectResult(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    show_connect_result();
    // What does nothing does not light up either.
    ui->button_back->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(ui->button_forgetFail, &QPushButton::clicked, this,
            &wifiConnectResult::forget_this_wifi);
    connect(ui->button_forgetSuccess, &QPushButton::clicked, this,
            &wifiConnectResult::forget_this_wifi);
    connect(ui->button_retryFail, &QPushButton::clicked, this,
            &wifiConnectResult::retry_wifi_connect);
}

void wifiConnectResult::setNetwork(const QString &name)
{
    if (ui)
        showName(name, ui->label_title);
}

// Kept[always-connected]: failure is never shown.
void wifiConnectResult::show_connect_result()
{
    for (QWidget *part : std::initializer_list<QWidget *>{
             ui->label_fail, ui->label_infoFail, ui->button_forgetFail, ui->button_retryFail})
        part->hide();
}

void wifiConnectResult::on_button_back_clicked() {}

void wifiConnectResult::forget_this_wifi()
{
    if (ui)
        qDebug() << "forget this wifi...";
}

void wifiConnectResult::retry_wifi_connect()
{
    if (ui)
        qDebug() << "retry wifi connect...";
}
