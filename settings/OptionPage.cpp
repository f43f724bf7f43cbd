#include "settings/OptionPage.h"

#include "connectivity/SetWifiPage.h"
#include "connectivity/connectApp.h"
#include "connectivity/setLocation.h"
#include "connectivity/updateFirmware.h"
#include "pages/DragScroll.h"
#include "pages/PagePattern.h"
#include "settings/Factory_Reset.h"
#include "settings/SetTimePage.h"
#include "settings/adjustLight.h"
#include "settings/nightModePage.h"
#include "settings/setLanguagePage.h"
#include "ui_OptionPage.h"

#include <QDebug>
#include <QScrollBar>

namespace {
const char *const unitInUse = "QLabel{font-size:24px;color:#00E5FF;}";
const char *const otherUnit = "QLabel{font-size:24px;color:#FFFFFF;}";
} // namespace

OptionPage::OptionPage(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::OptionPage>())
{
    ui->setupUi(this);
    fillGround(this);
    fillGround(ui->scrollAreaWidgetContents);
    setup_signalWithSlot();
    new DragScroll(ui->scrollAreaWidgetContents, ui->scrollArea->verticalScrollBar(), this);
}

OptionPage::~OptionPage() = default;

void OptionPage::setup_signalWithSlot()
{
    using Jump = void (OptionPage::*)();
    const std::pair<OptionFrame *, Jump> jumps[] = {
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
    for (const auto &[tile, jump] : jumps)
        connect(tile, &OptionFrame::clicked, this, jump);

    ui->checkBox_tempture->setChecked(true);
    ui->label_C->setStyleSheet(unitInUse);
    ui->label_F->setStyleSheet(otherUnit);
    connect(ui->checkBox_tempture, &QCheckBox::clicked, this, &OptionPage::option_setTempture);
}

template <class Page>
void OptionPage::open(QWidget *holder)
{
    openPage<Page>(this, ui->stackedWidget, holder, &OptionPage::back_default_page);
}

bool OptionPage::is_allowed_slide()
{
    const int page = ui->stackedWidget->currentIndex();
    qDebug("#####%d", page);
    return page == 0;
}

void OptionPage::jump_setWifi_page()
{
    open<SetWifiPage>(ui->page_setWifi);
}

void OptionPage::jump_setTime_page()
{
    open<SetTimePage>(ui->page_setTime);
}

void OptionPage::jump_setNightPatternSlt()
{
    open<nightModePage>(ui->page_nightMode);
}

void OptionPage::jump_adjustLight_page()
{
    open<adjustLight>(ui->page_adjustLight);
}

void OptionPage::jump_setLanguage_page()
{
    open<setLanguagePage>(ui->page_setLanguage);
}

void OptionPage::jump_setLocation_page()
{
    open<setLocation>(ui->page_setLocation);
}

void OptionPage::jump_connectApp_page()
{
    open<connectApp>(ui->page_connectApp);
}

void OptionPage::jump_updateFirmware_page()
{
    open<updateFirmware>(ui->page_updateFirmware);
}

void OptionPage::jump_resetFactory_page()
{
    open<Factory_Reset>(ui->page_resetFactory);
}

void OptionPage::back_default_page()
{
    ui->stackedWidget->setCurrentWidget(ui->page_defalut);
}

void OptionPage::on_button_back_clicked()
{
    emit signal_back_lastPage();
}

void OptionPage::option_setTempture()
{
    const bool celsius = ui->checkBox_tempture->isChecked();
    ui->label_C->setStyleSheet(celsius ? unitInUse : otherUnit);
    ui->label_F->setStyleSheet(celsius ? otherUnit : unitInUse);
    qDebug(celsius ? "tempture is ℃..." : "tempture is ℉...");
}
