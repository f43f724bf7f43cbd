#pragma once

#include "pages/FormPage.h"

namespace Ui {
class installFirmware;
}

/// The page of a finished download. It only shows: nothing is installed. GUI thread.
class installFirmware : public FormPage<Ui::installFirmware>
{
    Q_OBJECT

public:
    explicit installFirmware(QWidget *parent = nullptr);
};
