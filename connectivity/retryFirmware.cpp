#include "connectivity/retryFirmware.h"

#include "ui_retryFirmware.h"

namespace {
// Kept[stalled-at-83]: a picture of a download, not the one that failed.
constexpr int stalledPercent = 83;
} // namespace

retryFirmware::retryFirmware(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    ui->progressBar_fail->setValue(stalledPercent);
    ui->progressBar_fail->setTextVisible(false);
    // Kept[retry-runs-twice]: setupUi has bound both slots by name already.
    connect(ui->button_back, &QPushButton::clicked, this, &retryFirmware::on_button_back_clicked);
    connect(ui->button_retry, &QPushButton::clicked, this, &retryFirmware::on_button_retry_clicked);
}

void retryFirmware::on_button_retry_clicked()
{
    if (ui)
        emit signal_retryDownloadPage();
}
