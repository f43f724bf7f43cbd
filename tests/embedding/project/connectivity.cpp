#include "Page.h"
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
    const ConnectState state = info->getConnectState();
    const bool flags[] = {info->isConnected(), info->hasNetwork(), info->isConnecting()};

    WifiListModel model(holder);
    QAbstractListModel *base = &model;
    model.setWifiList(QList<WifiInfo *>{info});
    model.insertWifi(0, info);
    model.insertRows(0, 1, QModelIndex());
    model.removeRows(0, 1, QModelIndex());
    model.setData(base->index(0), model.data(base->index(0), 10));
    model.toConnect(int(state) + int(model.flags(base->index(0))) + model.rowCount(QModelIndex()));
    model.resetList();
    const WifiListRowDelegate delegate(holder);
    delegate.paint(painter, QStyleOptionViewItem(), base->index(flags[0]));
    delegate.sizeHint(QStyleOptionViewItem(), QModelIndex());

    auto *list = page<SetWifiPage>(holder);
    list->onListWifiItemClicked(QItemSelection(), QItemSelection());
    list->back_default_page();
}

void keyboard(QWidget *container)
{
    CharacterButton key(container);
    QObject::connect(&key, &CharacterButton::signal_value, static_cast<QPushButton *>(&key),
                     [](QString) {});
    key.show_label();
    key.hide_label();
    key.send_value();
    KeyBorad keyboard(container);
    QObject::connect(&keyboard, &KeyBorad::signal_character, container, [](QString) {});
    QObject::connect(&keyboard, &KeyBorad::signal_commit, container, [](QString) {});
    keyboard.add_character(QString("a"));
    keyboard.add_character();
    keyboard.delete_character();
    keyboard.complete_input();
    keyboard.on_button_shiftNormal_pressed();
    keyboard.on_button_shiftChecked_pressed();
    keyboard.on_button_symbol_clicked();
    keyboard.on_button_symbol_2_clicked();
    keyboard.on_button_character_clicked();
    keyboard.change_pressedIcon();
    keyboard.change_releasedIcon();

    auto *password = page<passwordKeyboard>(container);
    QObject::connect(password, &passwordKeyboard::signal_commit, container, [](QString) {});
    password->on_entered_password();
    password->jump_wifiConnectResult_page();
    wifiConnectResult result(container);
    result.on_button_back_clicked();
    result.forget_this_wifi();
    result.retry_wifi_connect();
}

void firmware(QWidget *holder, QNetworkReply *reply)
{
    auto *download = page<updateFirmware>(holder);
    download->check_versionUpdate();
    download->update_newVersion();
    download->back_download_page();
    download->download_newVersion();
    download->finish_reply(reply);
    download->on_downloadProgress(qint64(1), qint64(-1));
    auto *retry = page<retryFirmware>(holder);
    QObject::connect(retry, &retryFirmware::signal_retryDownloadPage, holder, &QWidget::close);
    retry->on_button_retry_clicked();
    const installFirmware install(holder);
}

void pairingAndLocation(QWidget *holder)
{
    auto *app = page<connectApp>(holder);
    app->download_from_appleStore();
    app->download_from_googlePlay();
    app->jump_tryConnectApp_page();
    app->jump_disconnectApp_page();
    app->show_connect_disconnect();
    auto *number = page<tryConnectApp>(holder);
    number->generate_random_number();
    number->check_connect_result();
    connectResult(holder).show_success_fail();
    disconnectApp question(holder);
    QObject::connect(&question, &disconnectApp::signal_backDefaultPage, holder, &QWidget::close);
    question.cancel_disconnectApp();
    question.confirm_disconnectApp();

    auto *location = page<setLocation>(holder);
    location->jump_searchLocation_page();
    location->set_network_locate();
    auto *search = page<searchLocation>(holder);
    QObject::connect(search, &searchLocation::signal_commit, holder, [](QString) {});
    search->jump_searchResult_page();
    search->delete_searchLocation();
    search->back_default_page();
    auto *result = page<locationResult>(holder);
    result->show_locate_result();
    result->delete_searchLocation();
    result->eventFilter(holder, nullptr);
}
