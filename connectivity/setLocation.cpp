#include "connectivity/setLocation.h"

#include "connectivity/searchLocation.h"
#include "pages/PagePattern.h"
#include "ui_setLocation.h"

#include <QDebug>

setLocation::setLocation(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::setLocation>())
{
    ui->setupUi(this);
    connect(ui->button_search, &QPushButton::clicked, this, &setLocation::jump_searchLocation_page);
    connect(ui->button_ok, &QPushButton::clicked, this, &setLocation::set_network_locate);
}

setLocation::~setLocation() = default;

void setLocation::on_button_back_clicked()
{
    emit signal_backDefaultPage();
}

void setLocation::jump_searchLocation_page()
{
    openPage<searchLocation>(this, ui->stackedWidget, ui->page_searchLocation,
                             &setLocation::on_button_back_clicked);
}

void setLocation::set_network_locate()
{
    qDebug() << "set network locate";
}
