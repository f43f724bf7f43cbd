#include "Page.h"
#include "settings/DateTimePage.h"
#include "settings/FactoryReset_Confirm.h"
#include "settings/Factory_Reset.h"
#include "settings/OptionFrame.h"
#include "settings/OptionPage.h"
#include "settings/QmlApplicationViewer.h"
#include "settings/SetTimePage.h"
#include "settings/TimeZoneItemDelegate.h"
#include "settings/TimeZonePage.h"
#include "settings/adjustLight.h"
#include "settings/nightModePage.h"
#include "settings/setLanguagePage.h"
#include "settings/timePage.h"

#include <QListWidgetItem>
#include <QPainter>

void menu()
{
    OptionPage menu(nullptr);
    QObject::connect(&menu, &OptionPage::signal_back_lastPage, &menu, &QWidget::close);
    menu.jump_setWifi_page();
    menu.jump_setTime_page();
    menu.jump_setNightPatternSlt();
    menu.jump_adjustLight_page();
    menu.jump_setLanguage_page();
    menu.jump_setLocation_page();
    menu.jump_connectApp_page();
    menu.jump_updateFirmware_page();
    menu.jump_resetFactory_page();
    menu.back_default_page();
    menu.on_button_back_clicked();
    menu.option_setTempture();
    const bool showsMenu = menu.is_allowed_slide();
    OptionFrame tile(&menu);
    QObject::connect(&tile, &OptionFrame::clicked, static_cast<QFrame *>(&tile), &QWidget::close);
    tile.change_status();
    tile.setVisible(showsMenu);
}

void timePages(QWidget *holder, QPainter *painter)
{
    auto *time = page<SetTimePage>(holder);
    time->on_button_timeZone_clicked();
    time->on_button_dateTime_clicked();
    time->back_default_page();
    page<DateTimePage>(holder)->Set24Hour(false);
    DateTimePage::instance->list_init();
    page<TimeZonePage>(holder)->on_tableWidget_timeZone_cellDoubleClicked(0, 1);
    TimeZonePage::instance->eventFilter(holder, nullptr);
    const TimeZoneItemDelegate delegate(QPixmap(), holder);
    delegate.paint(painter, QStyleOptionViewItem(), QModelIndex());
    delegate.sizeHint(QStyleOptionViewItem(), QModelIndex());
    const timeZoneItem item;
    static_cast<void>(item);

    QmlApplicationViewer spinner(holder);
    const QmlApplicationViewer other(static_cast<QQuickWidget *>(nullptr), holder);
    QObject::connect(&spinner, &QmlApplicationViewer::hour, holder, [](int) {});
    spinner.setMainQmlFile(QString("qrc:/resource/qml/spinner_hour.qml"));
    spinner.addImportPath(QString("qml"));
    spinner.setOrientation(QmlApplicationViewer::ScreenOrientation(2));
    spinner.showExpanded();
}

void otherPages(QWidget *holder)
{
    auto *night = page<nightModePage>(holder);
    night->SetTimeControlHideSlt();
    night->on_button_startTime_clicked();
    night->on_button_finishTime_clicked();
    night->back_default_page();
    night->on_button_setNightMode_clicked();
    auto *times = page<timePage>(holder);
    times->on_pushButton_start_clicked();
    times->on_pushButton_finish_clicked();
    auto *brightness = page<adjustLight>(holder);
    brightness->check_lightAdjust();
    brightness->light_valueChanged(132);
    brightness->cause_lightUpdate();
    QListWidgetItem item;
    page<setLanguagePage>(holder)->on_listWidget_itemClicked(&item);
    auto *reset = page<Factory_Reset>(holder);
    reset->on_button_confirm_clicked();
    reset->back_default_page();
    FactoryReset_Confirm confirm(holder);
    QObject::connect(&confirm, &FactoryReset_Confirm::signal_backDefaultPage, holder,
                     &QWidget::close);
    confirm.cancel_factoryReset();
    confirm.confirm_factoryReset();
}
