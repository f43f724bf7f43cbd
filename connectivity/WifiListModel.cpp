#include "connectivity/WifiListModel.h"

#include "device/TerminationSignals.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDebug>
#include <QPointer>
#include <QTimer>
#include <algorithm>
#include <chrono>

namespace {
using namespace std::chrono_literals;

constexpr auto connectingTime = 1s;
// How long events are waited for before the time is looked at again.
constexpr auto eventTime = 100ms;
} // namespace

WifiListModel::WifiListModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

int WifiListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(wifiList.size());
}

QVariant WifiListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= wifiList.size())
        return {};
    const WifiInfo *info = wifiList.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return info->ssid;
    case Qt::StatusTipRole:
        return info->signalLevel;
    case Qt::CheckStateRole:
        return int(info->getConnectState());
    default:
        return {};
    }
}

Qt::ItemFlags WifiListModel::flags(const QModelIndex &) const
{
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled;
}

bool WifiListModel::setData(const QModelIndex &, const QVariant &, int)
{
    return false;
}

bool WifiListModel::insertRows(int row, int count, const QModelIndex &)
{
    if (count < 1)
        return true;
    const int first = std::clamp(row, 0, rowCount());
    beginInsertRows({}, first, first + count - 1);
    for (int i = 0; i < count; ++i) {
        blanks.push_back(std::make_unique<WifiInfo>(QString(), QString(), 0, EncryptType::None));
        wifiList.insert(first + i, blanks.back().get());
    }
    endInsertRows();
    return true;
}

bool WifiListModel::removeRows(int row, int count, const QModelIndex &)
{
    const int removed = row < 0 ? 0 : std::min(count, rowCount() - row);
    if (removed < 1)
        return true;
    beginRemoveRows({}, row, row + removed - 1);
    wifiList.remove(row, removed);
    endRemoveRows();
    return true;
}

void WifiListModel::insertWifi(int row, WifiInfo *&info)
{
    beginResetModel();
    wifiList.insert(std::clamp(row, 0, rowCount()), info);
    endResetModel();
}

void WifiListModel::setWifiList(const QList<WifiInfo *> &list)
{
    beginResetModel();
    wifiList = list;
    endResetModel();
}

void WifiListModel::resetList()
{
    beginResetModel();
    endResetModel();
}

void WifiListModel::toConnect(int row)
{
    if (row < 0 || row >= wifiList.size()) {
        qDebug() << "no network in row" << row;
        return;
    }
    WifiInfo *chosen = wifiList.at(row);
    for (WifiInfo *info : std::as_const(wifiList))
        info->setConnectState(StateDisconnected);
    chosen->setConnectState(StateConnecting);
    resetList();

    // Kept[connected-by-waiting]: a second passes, and nothing is connected.
    const QPointer<WifiListModel> self(this);
    // Not by the time of day, which may be set or pass midnight meanwhile.
    const QDeadlineTimer connected(connectingTime);
    // Asleep between two events: a loop that only asks for them takes the whole processor.
    QTimer look;
    look.start(eventTime);
    while (self && !connected.hasExpired() && !TerminationSignals::haveArrived())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (!self || !wifiList.contains(chosen) || !chosen->isConnecting())
        return;
    chosen->setConnectState(StateConnected);
    resetList();
}
