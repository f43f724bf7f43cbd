#pragma once

#include "pages/FormPage.h"

namespace Ui {
class wifiConnectResult;
}

/// Tells whether the connection to the Internet succeeded and offers to forget the network or to
/// try again.
///
/// Until a connection is really made it always shows success, and the offers are only logged. GUI
/// thread.
class wifiConnectResult : public FormPage<Ui::wifiConnectResult>
{
    Q_OBJECT

public:
    explicit wifiConnectResult(QWidget *parent);

    /// Titles the page with @p name, which stays over a retry. Nothing on an emptied page.
    void setNetwork(const QString &name);

    /// Does nothing: there is no page to go back to yet.
    void on_button_back_clicked() override;

public slots:
    void forget_this_wifi();
    void retry_wifi_connect();

private:
    void show_connect_result();
};
