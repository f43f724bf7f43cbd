#pragma once

#include "pages/FormPage.h"

namespace Ui {
class retryFirmware;
}

/// The page of a failed download. GUI thread.
///
/// Both buttons run their slot twice per click, so every signal goes out twice; receivers bear it.
class retryFirmware : public FormPage<Ui::retryFirmware>
{
    Q_OBJECT

public:
    explicit retryFirmware(QWidget *parent = nullptr);

signals:
    void signal_retryDownloadPage();

public slots:
    void on_button_retry_clicked();
};
