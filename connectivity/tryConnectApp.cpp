#include "connectivity/tryConnectApp.h"

#include "connectivity/connectResult.h"
#include "ui_tryConnectApp.h"

#include <QDebug>
#include <cstdlib>
#include <ctime>

tryConnectApp::tryConnectApp(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    generate_random_number();
    // Kept[number-back-twice]: setupUi has bound the slot by name already.
    connect(ui->button_back, &QPushButton::clicked, this, &tryConnectApp::on_button_back_clicked);
}

void tryConnectApp::generate_random_number()
{
    if (!ui)
        return;
    // Kept[number-of-the-second]: two openings within one second show the same number.
    std::srand(static_cast<unsigned>(std::time(nullptr)));
    int place = 0;
    for (QLabel *label : {ui->label_num1, ui->label_num2, ui->label_num3, ui->label_num4}) {
        const int digit = std::rand() % 10;
        qDebug("generate random number[%d] ...is %d", place++, digit);
        label->setText(tr("%1").arg(digit));
    }
}

void tryConnectApp::check_connect_result()
{
    if (ui)
        ui->page_connectResult->open<connectResult>();
}
