#include "Names.h"
#include "connectivity/CharacterButton.h"
#include "connectivity/KeyBorad.h"
#include "connectivity/SetWifiPage.h"
#include "connectivity/WifiInfo.h"
#include "connectivity/WifiListModel.h"
#include "connectivity/WifiListRowDelegate.h"
#include "connectivity/connectApp.h"
#include "connectivity/connectResult.h"
#include "connectivity/disconnectApp.h"
#include "connectivity/installFirmware.h"
#include "connectivity/locationResult.h"
#include "connectivity/passwordKeyboard.h"
#include "connectivity/retryFirmware.h"
#include "connectivity/searchLocation.h"
#include "connectivity/setLocation.h"
#include "connectivity/tryConnectApp.h"
#include "connectivity/updateFirmware.h"
#include "connectivity/wifiConnectResult.h"

static_assert(std::is_constructible_v<WifiInfo, QString, QString, int, EncryptType>);
static_assert(exist(&WifiInfo::setConnectState, &WifiInfo::getConnectState, &WifiInfo::isConnected,
                    &WifiInfo::hasNetwork, &WifiInfo::isConnecting, StateDisconnected,
                    StateConnected, StateConnectedNoNetwork, StateConnecting));
static_assert(has<WifiListModel, QAbstractListModel>(
    &WifiListModel::setWifiList, &WifiListModel::insertWifi, &WifiListModel::insertRows,
    &WifiListModel::removeRows, &WifiListModel::setData, &WifiListModel::data,
    &WifiListModel::flags, &WifiListModel::rowCount, &WifiListModel::toConnect,
    &WifiListModel::resetList));
static_assert(has<WifiListRowDelegate, QStyledItemDelegate>(&WifiListRowDelegate::paint,
                                                            &WifiListRowDelegate::sizeHint));
static_assert(isPage<SetWifiPage>(&SetWifiPage::onListWifiItemClicked,
                                  &SetWifiPage::back_default_page));

static_assert(has<CharacterButton, QPushButton>(&CharacterButton::signal_value,
                                                &CharacterButton::show_label,
                                                &CharacterButton::hide_label,
                                                &CharacterButton::send_value));
static_assert(has<KeyBorad>(&KeyBorad::signal_character, &KeyBorad::signal_commit,
                            qOverload<const QString &>(&KeyBorad::add_character),
                            qOverload<>(&KeyBorad::add_character), &KeyBorad::delete_character,
                            &KeyBorad::complete_input, &KeyBorad::on_button_shiftNormal_pressed,
                            &KeyBorad::on_button_shiftChecked_pressed,
                            &KeyBorad::on_button_symbol_clicked,
                            &KeyBorad::on_button_symbol_2_clicked,
                            &KeyBorad::on_button_character_clicked, &KeyBorad::change_pressedIcon,
                            &KeyBorad::change_releasedIcon));
static_assert(isPage<passwordKeyboard>(&passwordKeyboard::signal_commit,
                                       &passwordKeyboard::on_entered_password,
                                       &passwordKeyboard::jump_wifiConnectResult_page));
static_assert(isPage<wifiConnectResult>(&wifiConnectResult::forget_this_wifi,
                                        &wifiConnectResult::retry_wifi_connect));

static_assert(isPage<updateFirmware>(
    &updateFirmware::check_versionUpdate, &updateFirmware::update_newVersion,
    &updateFirmware::back_download_page, &updateFirmware::download_newVersion,
    &updateFirmware::finish_reply, &updateFirmware::on_downloadProgress));
static_assert(isPage<retryFirmware>(&retryFirmware::signal_retryDownloadPage,
                                    &retryFirmware::on_button_retry_clicked));
static_assert(isPage<installFirmware>());

static_assert(isPage<connectApp>(&connectApp::download_from_appleStore,
                                 &connectApp::download_from_googlePlay,
                                 &connectApp::jump_tryConnectApp_page,
                                 &connectApp::jump_disconnectApp_page,
                                 &connectApp::show_connect_disconnect));
static_assert(isPage<tryConnectApp>(&tryConnectApp::generate_random_number,
                                    &tryConnectApp::check_connect_result));
static_assert(isPage<connectResult>(&connectResult::show_success_fail));
static_assert(isPage<disconnectApp>(&disconnectApp::cancel_disconnectApp,
                                    &disconnectApp::confirm_disconnectApp));

static_assert(isPage<setLocation>(&setLocation::jump_searchLocation_page,
                                  &setLocation::set_network_locate));
static_assert(isPage<searchLocation>(&searchLocation::signal_commit,
                                     &searchLocation::jump_searchResult_page,
                                     &searchLocation::delete_searchLocation,
                                     &searchLocation::back_default_page));
static_assert(isPage<locationResult>(&locationResult::show_locate_result,
                                     &locationResult::delete_searchLocation,
                                     &locationResult::eventFilter));
