#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class timePage;
}

/// Wheels for a time of night mode, and a selector between its start and its finish.
///
/// What the wheels are turned to leaves the page nowhere. Built afresh for every visit. GUI thread.
class timePage : public QWidget
{
    Q_OBJECT

public:
    explicit timePage(QWidget *parent = nullptr);
    ~timePage() override;

signals:
    void signal_backDefaultPage();

private slots:
    void on_button_back_clicked();
    void on_pushButton_start_clicked();
    void on_pushButton_finish_clicked();

private:
    void initTimeControl();

    std::unique_ptr<Ui::timePage> ui;
    bool use24Hour = true;
};
