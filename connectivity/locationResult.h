#pragma once

#include <QWidget>
#include <memory>

class LineCaret;

namespace Ui {
class locationResult;
}

/// The places that were found: a fixed sample, scrolled by dragging, or the view of no result once
/// the search is cleared. GUI thread.
class locationResult : public QWidget
{
    Q_OBJECT

public:
    explicit locationResult(QWidget *parent = nullptr);
    ~locationResult() override;

    /// Shows the list and appends the sample to it.
    void show_locate_result();

public slots:
    void on_button_back_clicked();
    void delete_searchLocation();

signals:
    void signal_backDefaultPage();

private:
    std::unique_ptr<Ui::locationResult> ui;
    LineCaret *caret;
};
