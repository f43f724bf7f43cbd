#pragma once

#include "connectivity/WifiInfo.h"

#include <QAbstractListModel>
#include <QTimer>
#include <memory>
#include <vector>

/// The networks of the Wi-Fi page, one row each.
///
/// Display role: name; status-tip role: signal level; check-state role: ConnectState as int. The
/// networks belong to whoever hands them over and must outlive the model; only blank ones made by
/// insertRows() are its own, and go with it. GUI thread.
class WifiListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit WifiListModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Selectable and enabled, whatever the index.
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Changes nothing.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    /// Inserts @p count blank networks under the root. A row outside the list is moved to its end.
    bool insertRows(int row, int count, const QModelIndex &parent = {}) override;
    /// Removes those of the rows that exist, from the root; the networks stay alive. Always true.
    bool removeRows(int row, int count, const QModelIndex &parent = {}) override;

    /// A row outside the list is moved to its end.
    void insertWifi(int row, WifiInfo *&info);
    void setWifiList(const QList<WifiInfo *> &list);
    void resetList();

    /// Marks the network at @p row as connecting for a second, then as connected; all others are
    /// disconnected. The second passes here, with events being processed.
    ///
    /// Called again meanwhile, the later choice takes over: that call returns false at once, and
    /// the first one waits a second more and returns for both. Also false when the model goes
    /// meanwhile, its network is taken out, or there is no such row.
    bool toConnect(int row);

private:
    /// Processes events until the time of connecting is over. False when the model has gone.
    bool waitForConnection();

    QList<WifiInfo *> wifiList;
    std::vector<std::unique_ptr<WifiInfo>> blanks;
    WifiInfo *chosen = nullptr;
    QTimer connecting;
    bool waiting = false;
};
