#include "Names.h"
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
    listen(&menu, &OptionPage::signal_back_lastPage);
    call(menu, &OptionPage::jump_setWifi_page, &OptionPage::jump_setTime_page,
         &OptionPage::jump_setNightPatternSlt, &OptionPage::jump_adjustLight_page,
         &OptionPage::jump_setLanguage_page, &OptionPage::jump_setLocation_page,
         &OptionPage::jump_connectApp_page, &OptionPage::jump_updateFirmware_page,
         &OptionPage::jump_resetFactory_page, &OptionPage::back_default_page,
         &OptionPage::on_button_back_clicked, &OptionPage::option_setTempture);
    OptionFrame tile(&menu);
    QFrame &base = tile;
    base.setVisible(menu.is_allowed_slide());
    listen(&tile, &OptionFrame::clicked);
    tile.change_status();
}

void timePages(QWidget *holder, QPainter *painter)
{
    call(opened<SetTimePage>(holder), &SetTimePage::on_button_timeZone_clicked,
         &SetTimePage::on_button_dateTime_clicked, &SetTimePage::back_default_page);
    opened<DateTimePage>(holder).Set24Hour(false);
    DateTimePage::instance->list_init();
    opened<TimeZonePage>(holder).on_tableWidget_timeZone_cellDoubleClicked(0, 1);
    TimeZonePage::instance->eventFilter(holder, nullptr);
    const TimeZoneItemDelegate delegate(QPixmap(), holder);
    delegate.paint(painter, QStyleOptionViewItem(), QModelIndex());
    delegate.sizeHint(QStyleOptionViewItem(), QModelIndex());
    const timeZoneItem item;

    QmlApplicationViewer spinner(holder);
    const QmlApplicationViewer other(static_cast<QQuickWidget *>(nullptr), holder);
    QObject::connect(&spinner, &QmlApplicationViewer::hour, [](int) {});
    spinner.setMainQmlFile(QString("qrc:/resource/qml/spinner_hour.qml"));
    spinner.addImportPath(QString("qml"));
    spinner.setOrientation(QmlApplicationViewer::ScreenOrientation(2));
    spinner.showExpanded();
}

void otherPages(QWidget *holder)
{
    call(opened<nightModePage>(holder), &nightModePage::SetTimeControlHideSlt,
         &nightModePage::on_button_startTime_clicked, &nightModePage::on_button_finishTime_clicked,
         &nightModePage::back_default_page, &nightModePage::on_button_setNightMode_clicked);
    call(opened<timePage>(holder), &timePage::on_pushButton_start_clicked,
         &timePage::on_pushButton_finish_clicked);
    auto &brightness = opened<adjustLight>(holder);
    brightness.light_valueChanged(132);
    call(brightness, &adjustLight::check_lightAdjust, &adjustLight::cause_lightUpdate);
    QListWidgetItem item;
    opened<setLanguagePage>(holder).on_listWidget_itemClicked(&item);
    call(opened<Factory_Reset>(holder), &Factory_Reset::on_button_confirm_clicked,
         &Factory_Reset::back_default_page);
    FactoryReset_Confirm confirm(holder);
    listen(&confirm, &FactoryReset_Confirm::signal_backDefaultPage);
    call(confirm, &FactoryReset_Confirm::cancel_factoryReset,
         &FactoryReset_Confirm::confirm_factoryReset);
}
