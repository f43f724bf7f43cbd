#pragma once

#include "connectivity/WifiInfo.h"

#include <QAbstractListModel>
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
    /// Gives selectable and enabled, whatever the index.
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Changes nothing.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    /// Inserts @p count blank networks under the root; a row outside the list counts as the
    /// nearest.
    bool insertRows(int row, int count, const QModelIndex &parent = {}) override;
    /// Removes those of the rows that exist, from the root; the networks stay alive. Always true.
    bool removeRows(int row, int count, const QModelIndex &parent = {}) override;

    /// Inserts @p info; a row outside the list counts as the nearest.
    void insertWifi(int row, WifiInfo *&info);
    void setWifiList(const QList<WifiInfo *> &list);
    void resetList();

    /// Marks the network at @p row as connecting for a second, then as connected; all others are
    /// disconnected. A row outside the list changes nothing.
    ///
    /// The second passes here, with events being processed: by the end of it the model may have
    /// gone, and another network may have been chosen, which then is the one connected.
    void toConnect(int row);

private:
    QList<WifiInfo *> wifiList;
    std::vector<std::unique_ptr<WifiInfo>> blanks;
};
