#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class installFirmware;
}

/// The page of a finished download. It only shows: nothing is installed. GUI thread.
class installFirmware : public QWidget
{
    Q_OBJECT

public:
    explicit installFirmware(QWidget *parent = nullptr);
    ~installFirmware() override;

public slots:
    void on_button_back_clicked();

signals:
    void signal_backDefaultPage();

private:
    std::unique_ptr<Ui::installFirmware> ui;
};
