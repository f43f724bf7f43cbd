#pragma once

#include "pages/FormPage.h"

namespace Ui {
class Factory_Reset;
}

/// Tells what a factory reset does and leads to the question whether it shall be done. GUI thread.
class Factory_Reset : public FormPage<Ui::Factory_Reset>
{
    Q_OBJECT

public:
    explicit Factory_Reset(QWidget *parent = nullptr);

public slots:
    void on_button_confirm_clicked();
};
