#pragma once

#include "pages/FormPage.h"

namespace Ui {
class setLocation;
}

/// The choice between the place the network gives and one chosen by hand. Nothing is kept: the two
/// places shown are samples. GUI thread.
class setLocation : public FormPage<Ui::setLocation>
{
    Q_OBJECT

public:
    explicit setLocation(QWidget *parent = nullptr);

public slots:
    void jump_searchLocation_page();
    void set_network_locate();
};
