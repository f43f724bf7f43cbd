#pragma once

#include "connectivity/WifiInfo.h"
#include "pages/FormPage.h"

#include <QList>
#include <memory>
#include <vector>

class QFile;
class QItemSelection;
class WifiListModel;

namespace Ui {
class SetWifiPage;
}

/// The networks in reach, scanned once while the page is built: that blocks for the whole scan.
///
/// A tap on a network shows it as connecting for a second, then as connected, and opens the page
/// for its password. Each tap within that second nests one more choice, up to four, and the last of
/// them is the one whose password is asked for. The connection is only shown, not made. Without a
/// scan result the page says that there is no Wi-Fi. GUI thread.
class SetWifiPage : public FormPage<Ui::SetWifiPage>
{
    Q_OBJECT

public:
    explicit SetWifiPage(QWidget *parent = nullptr);
    ~SetWifiPage() override;

    void on_button_back_clicked() override;

public slots:
    void onListWifiItemClicked(const QItemSelection &selected, const QItemSelection &deselected);

protected:
    /// Inserts a placeholder network at the top.
    void timerEvent(QTimerEvent *event) override;

private:
    /// Scans and returns the path of the result.
    static QString scan();
    void showNetworks(QFile &scanFile);
    void showNoWifi(const QFile &scanFile);
    /// Owns @p info until the page goes, as whatever is waiting for a connection still needs it.
    WifiInfo *keep(std::unique_ptr<WifiInfo> info);

    WifiListModel *model;
    std::vector<std::unique_ptr<WifiInfo>> networks;
    QList<WifiInfo *> wifiList;
    QString chosen;
    int timerId = 0;
    int choicesUnderWay = 0;
};
