#include "connectivity/connectApp.h"

#include "connectivity/disconnectApp.h"
#include "connectivity/tryConnectApp.h"
#include "ui_connectApp.h"

#include <QDebug>

connectApp::connectApp(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    show_connect_disconnect();
    for (PageHolder *holder : {ui->page_tryConnectApp, ui->page_disconnectApp})
        connect(holder, &PageHolder::signal_pageLeft, this, &connectApp::on_button_back_clicked);
    connect(ui->button_appStore, &QPushButton::clicked, this,
            &connectApp::download_from_appleStore);
    connect(ui->button_googlePlay, &QPushButton::clicked, this,
            &connectApp::download_from_googlePlay);
    connect(ui->button_connectApp, &QPushButton::clicked, this,
            &connectApp::jump_tryConnectApp_page);
    connect(ui->button_disconnectApp, &QPushButton::clicked, this,
            &connectApp::jump_disconnectApp_page);
}

void connectApp::show_connect_disconnect()
{
    if (!ui)
        return;
    ui->label_disonnected->hide();
    ui->button_disconnectApp->hide();
    for (QWidget *part : std::initializer_list<QWidget *>{
             ui->label_download, ui->button_connectApp, ui->label_symblol1, ui->label_symblol2,
             ui->label_symblol3, ui->label_symblol4, ui->label_rightInfo})
        part->show();
}

void connectApp::download_from_appleStore()
{
    if (ui)
        qDebug() << "Download Zell App from Apple Store ...";
}

void connectApp::download_from_googlePlay()
{
    if (ui)
        qDebug() << "Download Zell App from Google Play ...";
}

void connectApp::jump_tryConnectApp_page()
{
    if (ui)
        ui->page_tryConnectApp->open<tryConnectApp>();
}

void connectApp::jump_disconnectApp_page()
{
    if (ui)
        ui->page_disconnectApp->open<disconnectApp>();
}
