#include "connectivity/connectApp.h"

#include "connectivity/TextLines.h"
#include "connectivity/disconnectApp.h"
#include "connectivity/tryConnectApp.h"
#include "pages/PagePattern.h"
#include "ui_connectApp.h"

#include <QDebug>

namespace {
// Each line of the list stands beside its bullet.
constexpr int bulletPitch = 44;
} // namespace

connectApp::connectApp(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::connectApp>())
{
    ui->setupUi(this);
    ui->label_rightInfo->setText(linesApart(ui->label_rightInfo->text(), bulletPitch));
    for (QWidget *part : std::initializer_list<QWidget *>{
             ui->label_disonnected, ui->button_disconnectApp, ui->label_download,
             ui->button_connectApp, ui->label_symblol1, ui->label_symblol2, ui->label_symblol3,
             ui->label_symblol4, ui->label_rightInfo})
        part->hide();
    show_connect_disconnect();
    connect(ui->button_appStore, &QPushButton::clicked, this,
            &connectApp::download_from_appleStore);
    connect(ui->button_googlePlay, &QPushButton::clicked, this,
            &connectApp::download_from_googlePlay);
    connect(ui->button_connectApp, &QPushButton::clicked, this,
            &connectApp::jump_tryConnectApp_page);
    connect(ui->button_disconnectApp, &QPushButton::clicked, this,
            &connectApp::jump_disconnectApp_page);
}

connectApp::~connectApp() = default;

void connectApp::show_connect_disconnect()
{
    for (QWidget *part : std::initializer_list<QWidget *>{
             ui->label_download, ui->button_connectApp, ui->label_symblol1, ui->label_symblol2,
             ui->label_symblol3, ui->label_symblol4, ui->label_rightInfo})
        part->show();
}

void connectApp::on_button_back_clicked()
{
    emit signal_backDefaultPage();
}

void connectApp::download_from_appleStore()
{
    qDebug() << "Download Zell App from Apple Store ...";
}

void connectApp::download_from_googlePlay()
{
    qDebug() << "Download Zell App from Google Play ...";
}

void connectApp::jump_tryConnectApp_page()
{
    openPage<tryConnectApp>(this, ui->stackedWidget, ui->page_tryConnectApp,
                            &connectApp::on_button_back_clicked);
}

void connectApp::jump_disconnectApp_page()
{
    openPage<disconnectApp>(this, ui->stackedWidget, ui->page_disconnectApp,
                            &connectApp::on_button_back_clicked);
}
