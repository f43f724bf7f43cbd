#pragma once

#include "pages/FormPage.h"

namespace Ui {
class connectApp;
}

/// The page of the phone app: the codes of its two stores, and the way to the pairing number.
/// Nothing pairs, so the paired view stays hidden. GUI thread.
class connectApp : public FormPage<Ui::connectApp>
{
    Q_OBJECT

public:
    explicit connectApp(QWidget *parent = nullptr);

    /// Shows the view of a device that is not paired.
    void show_connect_disconnect();

public slots:
    void download_from_appleStore();
    void download_from_googlePlay();
    void jump_tryConnectApp_page();
    void jump_disconnectApp_page();
};
