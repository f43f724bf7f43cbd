#include "connectivity/connectResult.h"

#include "pages/Ground.h"
#include "ui_connectResult.h"

connectResult::connectResult(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::connectResult>())
{
    ui->setupUi(this);
    for (QLabel *part : {ui->icon_connectSuccess, ui->label_connectSuccess, ui->icon_disconnect,
                         ui->label_disconnectSuccess, ui->label_noWifi})
        part->hide();
    show_success_fail();
}

connectResult::~connectResult() = default;

void connectResult::open(QStackedWidget *stack, QWidget *holder)
{
    auto *page = new connectResult(holder);
    fillGround(page);
    page->show();
    stack->setCurrentWidget(holder);
}

void connectResult::show_success_fail() {}
