#pragma once

#include <QWidget>
#include <memory>

class QStackedWidget;

namespace Ui {
class connectResult;
}

/// The result of pairing or unpairing. No pairing runs yet, so it shows its panel only. GUI thread.
class connectResult : public QWidget
{
    Q_OBJECT

public:
    explicit connectResult(QWidget *parent = nullptr);
    ~connectResult() override;

    /// Builds a fresh one inside @p holder and makes that the current page of @p stack. There is no
    /// way back from it yet.
    static void open(QStackedWidget *stack, QWidget *holder);

    /// For the choice between the three results; does nothing while there is none to show.
    void show_success_fail();

private:
    std::unique_ptr<Ui::connectResult> ui;
};
