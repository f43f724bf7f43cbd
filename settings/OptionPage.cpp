#include "settings/OptionPage.h"

#include "connectivity/SetWifiPage.h"
#include "connectivity/connectApp.h"
#include "connectivity/setLocation.h"
#include "connectivity/updateFirmware.h"
#include "pages/DragScroll.h"
#include "pages/Ground.h"
#include "settings/Factory_Reset.h"
#include "settings/SetTimePage.h"
#include "settings/adjustLight.h"
#include "settings/nightModePage.h"
#include "settings/setLanguagePage.h"
#include "ui_OptionPage.h"

#include <QDebug>

namespace {
const QString unitInUse = QStringLiteral("QLabel{font-size:24px;color:#00E5FF;}");
const QString otherUnit = QStringLiteral("QLabel{font-size:24px;color:#FFFFFF;}");
} // namespace

OptionPage::OptionPage(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::OptionPage>())
{
    ui->setupUi(this);
    fillGround(this);
    fillGround(ui->scrollAreaWidgetContents);
    setup_signalWithSlot();
    scroll = new DragScroll(ui->scrollArea, this);
    ui->scrollAreaWidgetContents->installEventFilter(this);
}

OptionPage::~OptionPage() = default;

bool OptionPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->scrollAreaWidgetContents)
        scroll->follow(watched, event);
    return QWidget::eventFilter(watched, event);
}

void OptionPage::setup_signalWithSlot()
{
    struct Jump
    {
        OptionFrame *tile;
        void (OptionPage::*slot)();
    };
    const Jump jumps[] = {
        {ui->option_setWifi, &OptionPage::jump_setWifi_page},
        {ui->option_connectApp, &OptionPage::jump_connectApp_page},
        {ui->option_adjustLight, &OptionPage::jump_adjustLight_page},
        {ui->option_frame_nightPattern, &OptionPage::jump_setNightPatternSlt},
        {ui->option_setLocation, &OptionPage::jump_setLocation_page},
        {ui->option_setTime, &OptionPage::jump_setTime_page},
        {ui->option_updateFirmware, &OptionPage::jump_updateFirmware_page},
        {ui->option_frame_language, &OptionPage::jump_setLanguage_page},
        {ui->option_resetFactory, &OptionPage::jump_resetFactory_page},
    };
    for (const Jump &jump : jumps)
        connect(jump.tile, &OptionFrame::clicked, this, jump.slot);

    for (const PageHolder *holder : findChildren<PageHolder *>())
        connect(holder, &PageHolder::signal_pageLeft, this, &OptionPage::back_default_page);

    ui->checkBox_tempture->setChecked(true);
    ui->label_C->setStyleSheet(unitInUse);
    ui->label_F->setStyleSheet(otherUnit);
    connect(ui->checkBox_tempture, &QCheckBox::clicked, this, &OptionPage::option_setTempture);
}

bool OptionPage::is_allowed_slide()
{
    const int page = ui->stackedWidget->currentIndex();
    qDebug("#####%d", page);
    return page == 0;
}

void OptionPage::jump_setWifi_page()
{
    ui->page_setWifi->open<SetWifiPage>();
}

void OptionPage::jump_setTime_page()
{
    ui->page_setTime->open<SetTimePage>();
}

void OptionPage::jump_setNightPatternSlt()
{
    ui->page_nightMode->open<nightModePage>();
}

void OptionPage::jump_adjustLight_page()
{
    ui->page_adjustLight->open<adjustLight>();
}

void OptionPage::jump_setLanguage_page()
{
    ui->page_setLanguage->open<setLanguagePage>();
}

void OptionPage::jump_setLocation_page()
{
    ui->page_setLocation->open<setLocation>();
}

void OptionPage::jump_connectApp_page()
{
    ui->page_connectApp->open<connectApp>();
}

void OptionPage::jump_updateFirmware_page()
{
    ui->page_updateFirmware->open<updateFirmware>();
}

void OptionPage::jump_resetFactory_page()
{
    ui->page_resetFactory->open<Factory_Reset>();
}

void OptionPage::back_default_page()
{
    ui->stackedWidget->setCurrentWidget(ui->page_defalut);
}

void OptionPage::on_button_back_clicked()
{
    emit signal_back_lastPage();
}

// Kept[unit-not-stored]: no reading is converted.
void OptionPage::option_setTempture()
{
    const bool celsius = ui->checkBox_tempture->isChecked();
    ui->label_C->setStyleSheet(celsius ? unitInUse : otherUnit);
    ui->label_F->setStyleSheet(celsius ? otherUnit : unitInUse);
    qDebug(celsius ? "tempture is ℃..." : "tempture is ℉...");
}
