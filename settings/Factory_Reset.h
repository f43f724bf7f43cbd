#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class Factory_Reset;
}

/// Tells what a factory reset does and leads to the question whether it shall be done. GUI thread.
class Factory_Reset : public QWidget
{
    Q_OBJECT

public:
    explicit Factory_Reset(QWidget *parent = nullptr);
    ~Factory_Reset() override;

signals:
    void signal_backDefaultPage();

private slots:
    void on_button_back_clicked();
    void on_button_confirm_clicked();
    void back_default_page();

private:
    std::unique_ptr<Ui::Factory_Reset> ui;
};
