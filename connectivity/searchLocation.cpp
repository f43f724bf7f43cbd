#include "connectivity/searchLocation.h"

#include "connectivity/KeyBorad.h"
#include "connectivity/locationResult.h"
#include "pages/PagePattern.h"
#include "ui_searchLocation.h"

searchLocation::searchLocation(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::searchLocation>())
{
    ui->setupUi(this);
    keyBorad = new KeyBorad(ui->frame_keyboard);
    connect(keyBorad, &KeyBorad::signal_commit, this, &searchLocation::jump_searchResult_page);
    connect(ui->button_delete, &QPushButton::clicked, this, &searchLocation::delete_searchLocation);
}

searchLocation::~searchLocation() = default;

void searchLocation::on_button_back_clicked()
{
    emit signal_backDefaultPage();
}

void searchLocation::back_default_page()
{
    ui->stackedWidget->setCurrentWidget(ui->page_searchLocation);
}

void searchLocation::jump_searchResult_page()
{
    openPage<locationResult>(this, ui->stackedWidget, ui->page_locationResult,
                             &searchLocation::back_default_page);
}

void searchLocation::delete_searchLocation()
{
    ui->lineEdit->clear();
}
