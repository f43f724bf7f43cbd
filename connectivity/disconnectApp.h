#pragma once

#include "pages/FormPage.h"

namespace Ui {
class disconnectApp;
}

/// Asks whether to unpair from the phone. GUI thread.
class disconnectApp : public FormPage<Ui::disconnectApp>
{
    Q_OBJECT

public:
    explicit disconnectApp(QWidget *parent = nullptr);

public slots:
    void cancel_disconnectApp();
    void confirm_disconnectApp();
};
