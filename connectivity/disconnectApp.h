#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class disconnectApp;
}

/// Asks whether to unpair from the phone. GUI thread.
class disconnectApp : public QWidget
{
    Q_OBJECT

public:
    explicit disconnectApp(QWidget *parent = nullptr);
    ~disconnectApp() override;

public slots:
    void cancel_disconnectApp();
    void confirm_disconnectApp();

signals:
    void signal_backDefaultPage();

private:
    std::unique_ptr<Ui::disconnectApp> ui;
};
