#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class FactoryReset_Confirm;
}

/// The last question before a factory reset. GUI thread.
class FactoryReset_Confirm : public QWidget
{
    Q_OBJECT

public:
    explicit FactoryReset_Confirm(QWidget *parent = nullptr);
    ~FactoryReset_Confirm() override;

signals:
    void signal_backDefaultPage();

private slots:
    void cancel_factoryReset();
    /// Records the request in a debug line. Nothing is erased, and the page stays.
    void confirm_factoryReset();

private:
    std::unique_ptr<Ui::FactoryReset_Confirm> ui;
};
