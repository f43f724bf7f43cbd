#include "connectivity/searchLocation.h"

#include "connectivity/KeyBorad.h"
#include "connectivity/locationResult.h"
#include "ui_searchLocation.h"

searchLocation::searchLocation(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    connect(ui->page_locationResult, &PageHolder::signal_pageLeft, this,
            &searchLocation::back_default_page);
    auto *keyboard = new KeyBorad(ui->frame_keyboard);
    connect(keyboard, &KeyBorad::signal_commit, this, &searchLocation::jump_searchResult_page);
    connect(ui->button_delete, &QPushButton::clicked, this, &searchLocation::delete_searchLocation);
}

void searchLocation::jump_searchResult_page()
{
    if (ui)
        ui->page_locationResult->open<locationResult>();
}

void searchLocation::delete_searchLocation()
{
    if (ui)
        ui->lineEdit->clear();
}
