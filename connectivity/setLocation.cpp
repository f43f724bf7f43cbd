#include "connectivity/setLocation.h"

#include "connectivity/searchLocation.h"
#include "ui_setLocation.h"

#include <QDebug>

setLocation::setLocation(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    connect(ui->page_searchLocation, &PageHolder::signal_pageLeft, this,
            &setLocation::on_button_back_clicked);
    connect(ui->button_search, &QPushButton::clicked, this, &setLocation::jump_searchLocation_page);
    connect(ui->button_ok, &QPushButton::clicked, this, &setLocation::set_network_locate);
}

void setLocation::jump_searchLocation_page()
{
    if (ui)
        ui->page_searchLocation->open<searchLocation>();
}

void setLocation::set_network_locate()
{
    if (ui)
        qDebug() << "set network locate";
}
