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

#include <QItemSelection>
#include <QNetworkReply>
#include <QPainter>

void networks(QWidget *holder, QPainter *painter)
{
    auto *info = new WifiInfo(QString("Studio"), QString("MAC"), 3, EncryptType(0));
    for (const ConnectState state :
         {StateDisconnected, StateConnected, StateConnectedNoNetwork, StateConnecting})
        info->setConnectState(state);
    call(*info, &WifiInfo::getConnectState, &WifiInfo::isConnected, &WifiInfo::hasNetwork,
         &WifiInfo::isConnecting);

    WifiListModel model(holder);
    QAbstractListModel *base = &model;
    model.setWifiList(QList<WifiInfo *>{info});
    model.insertWifi(0, info);
    model.insertRows(0, 1, QModelIndex());
    model.removeRows(0, 1, QModelIndex());
    model.setData(base->index(0), model.data(base->index(0), 10));
    model.toConnect(int(model.flags(base->index(0))) + model.rowCount(QModelIndex()));
    model.resetList();
    const WifiListRowDelegate delegate(holder);
    delegate.paint(painter, QStyleOptionViewItem(), QModelIndex());
    delegate.sizeHint(QStyleOptionViewItem(), QModelIndex());

    auto &list = opened<SetWifiPage>(holder);
    list.onListWifiItemClicked(QItemSelection(), QItemSelection());
    list.back_default_page();
}

void keyboard(QWidget *container)
{
    CharacterButton key(container);
    QPushButton &base = key;
    base.show();
    QObject::connect(&key, &CharacterButton::signal_value, [](QString) {});
    call(key, &CharacterButton::show_label, &CharacterButton::hide_label,
         &CharacterButton::send_value);
    KeyBorad keyboard(container);
    QObject::connect(&keyboard, &KeyBorad::signal_character, [](QString) {});
    QObject::connect(&keyboard, &KeyBorad::signal_commit, [](QString) {});
    keyboard.add_character(QString("a"));
    keyboard.add_character();
    call(keyboard, &KeyBorad::delete_character, &KeyBorad::complete_input,
         &KeyBorad::on_button_shiftNormal_pressed, &KeyBorad::on_button_shiftChecked_pressed,
         &KeyBorad::on_button_symbol_clicked, &KeyBorad::on_button_symbol_2_clicked,
         &KeyBorad::on_button_character_clicked, &KeyBorad::change_pressedIcon,
         &KeyBorad::change_releasedIcon);

    auto &password = opened<passwordKeyboard>(container);
    QObject::connect(&password, &passwordKeyboard::signal_commit, [](QString) {});
    call(password, &passwordKeyboard::on_entered_password,
         &passwordKeyboard::jump_wifiConnectResult_page);
    wifiConnectResult result(container);
    call(result, &wifiConnectResult::on_button_back_clicked, &wifiConnectResult::forget_this_wifi,
         &wifiConnectResult::retry_wifi_connect);
}

void firmware(QWidget *holder, QNetworkReply *reply)
{
    auto &download = opened<updateFirmware>(holder);
    call(download, &updateFirmware::check_versionUpdate, &updateFirmware::update_newVersion,
         &updateFirmware::back_download_page, &updateFirmware::download_newVersion);
    download.finish_reply(reply);
    download.on_downloadProgress(qint64(1), qint64(-1));
    auto &retry = opened<retryFirmware>(holder);
    listen(&retry, &retryFirmware::signal_retryDownloadPage);
    retry.on_button_retry_clicked();
    const installFirmware install(holder);
}

void pairingAndLocation(QWidget *holder)
{
    call(opened<connectApp>(holder), &connectApp::download_from_appleStore,
         &connectApp::download_from_googlePlay, &connectApp::jump_tryConnectApp_page,
         &connectApp::jump_disconnectApp_page, &connectApp::show_connect_disconnect);
    call(opened<tryConnectApp>(holder), &tryConnectApp::generate_random_number,
         &tryConnectApp::check_connect_result);
    connectResult(holder).show_success_fail();
    disconnectApp question(holder);
    listen(&question, &disconnectApp::signal_backDefaultPage);
    call(question, &disconnectApp::cancel_disconnectApp, &disconnectApp::confirm_disconnectApp);

    call(opened<setLocation>(holder), &setLocation::jump_searchLocation_page,
         &setLocation::set_network_locate);
    auto &search = opened<searchLocation>(holder);
    QObject::connect(&search, &searchLocation::signal_commit, [](QString) {});
    call(search, &searchLocation::jump_searchResult_page, &searchLocation::delete_searchLocation,
         &searchLocation::back_default_page);
    auto &result = opened<locationResult>(holder);
    call(result, &locationResult::show_locate_result, &locationResult::delete_searchLocation);
    result.eventFilter(holder, nullptr);
}
