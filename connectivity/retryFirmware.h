#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class retryFirmware;
}

/// The page of a failed download. GUI thread.
///
/// Both buttons run their slot twice per click, so every signal goes out twice; receivers bear it.
class retryFirmware : public QWidget
{
    Q_OBJECT

public:
    explicit retryFirmware(QWidget *parent = nullptr);
    ~retryFirmware() override;

public slots:
    void on_button_back_clicked();
    void on_button_retry_clicked();

signals:
    void signal_backDefaultPage();
    void signal_retryDownloadPage();

private:
    std::unique_ptr<Ui::retryFirmware> ui;
};
