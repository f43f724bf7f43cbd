#pragma once

#include "pages/FormPage.h"

namespace Ui {
class FactoryReset_Confirm;
}

/// The last question before a factory reset. GUI thread.
class FactoryReset_Confirm : public FormPage<Ui::FactoryReset_Confirm>
{
    Q_OBJECT

public:
    explicit FactoryReset_Confirm(QWidget *parent = nullptr);

public slots:
    void cancel_factoryReset();
    /// Records the request in a debug line. Nothing is erased, and the page stays.
    void confirm_factoryReset();
};
