#pragma once

#include "pages/FormPage.h"

namespace Ui {
class timePage;
}

/// Wheels for a time of night mode, and a selector between its start and its finish.
///
/// What the wheels are turned to leaves the page nowhere. Built afresh for every visit. GUI thread.
class timePage : public FormPage<Ui::timePage>
{
    Q_OBJECT

public:
    explicit timePage(QWidget *parent = nullptr);

public slots:
    void on_pushButton_start_clicked();
    void on_pushButton_finish_clicked();

private:
    void initTimeControl();
    void selectFinish(bool finish);

    bool use24Hour = true;
};
