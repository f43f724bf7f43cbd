#pragma once

#include "pages/FormPage.h"

namespace Ui {
class passwordKeyboard;
}

/// Where the password of the chosen network is typed.
///
/// The password is neither checked nor kept yet: being done leads back to the list of networks, as
/// the back arrow does. GUI thread.
class passwordKeyboard : public FormPage<Ui::passwordKeyboard>
{
    Q_OBJECT

public:
    explicit passwordKeyboard(QWidget *parent);

    /// Titles this page, and the result behind it, with @p name. Nothing on an emptied page.
    void setNetwork(const QString &name);

signals:
    /// Never emitted; meant to hand the password on once there is a check.
    void signal_commit(const QString &strValue);

public slots:
    void on_entered_password();
    /// Opens the result of a connection; nothing calls it until there is a check.
    void jump_wifiConnectResult_page();

private:
    QString network; ///< whole, however much of it the title shows
};
