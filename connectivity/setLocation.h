#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class setLocation;
}

/// The choice between the place the network gives and one chosen by hand. Nothing is kept: the two
/// places shown are samples. GUI thread.
class setLocation : public QWidget
{
    Q_OBJECT

public:
    explicit setLocation(QWidget *parent = nullptr);
    ~setLocation() override;

public slots:
    void on_button_back_clicked();
    void jump_searchLocation_page();
    void set_network_locate();

signals:
    void signal_backDefaultPage();

private:
    std::unique_ptr<Ui::setLocation> ui;
};
