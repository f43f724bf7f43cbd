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

// What the tests of the room call is not named a second time.
static_assert(has<OptionPage>(&OptionPage::signal_back_lastPage, &OptionPage::jump_setWifi_page,
                              &OptionPage::jump_setNightPatternSlt,
                              &OptionPage::jump_adjustLight_page,
                              &OptionPage::jump_setLanguage_page,
                              &OptionPage::jump_setLocation_page, &OptionPage::jump_connectApp_page,
                              &OptionPage::jump_updateFirmware_page, &OptionPage::back_default_page,
                              &OptionPage::on_button_back_clicked,
                              &OptionPage::option_setTempture));
static_assert(has<OptionFrame, QFrame>(&OptionFrame::change_status));

static_assert(isPage<SetTimePage>(&SetTimePage::back_default_page));
static_assert(isPage<DateTimePage>(&DateTimePage::Set24Hour, &DateTimePage::list_init));
static_assert(isPage<TimeZonePage>(&TimeZonePage::on_tableWidget_timeZone_cellDoubleClicked,
                                   &TimeZonePage::eventFilter));
static_assert(exist(&TimeZoneItemDelegate::paint, &TimeZoneItemDelegate::sizeHint));
static_assert(std::is_constructible_v<TimeZoneItemDelegate, QPixmap, QWidget *>);
static_assert(std::is_default_constructible_v<timeZoneItem>);
using Viewer = QmlApplicationViewer;
static_assert(has<Viewer, QQuickWidget>(&Viewer::hour, &Viewer::addImportPath,
                                        &Viewer::setOrientation, Viewer::ScreenOrientation(2)));
static_assert(std::is_constructible_v<Viewer, QQuickWidget *, QWidget *>);

static_assert(isPage<nightModePage>(&nightModePage::SetTimeControlHideSlt,
                                    &nightModePage::on_button_startTime_clicked,
                                    &nightModePage::on_button_finishTime_clicked,
                                    &nightModePage::back_default_page,
                                    &nightModePage::on_button_setNightMode_clicked));
static_assert(isPage<timePage>(&timePage::on_pushButton_start_clicked,
                               &timePage::on_pushButton_finish_clicked));
static_assert(isPage<adjustLight>(&adjustLight::light_valueChanged,
                                  &adjustLight::check_lightAdjust));
static_assert(isPage<setLanguagePage>(&setLanguagePage::on_listWidget_itemClicked));
static_assert(isPage<Factory_Reset>(&Factory_Reset::on_button_confirm_clicked,
                                    &Factory_Reset::back_default_page));
static_assert(isPage<FactoryReset_Confirm>(&FactoryReset_Confirm::cancel_factoryReset,
                                           &FactoryReset_Confirm::confirm_factoryReset));
