#include "connectivity/updateFirmware.h"

#include "connectivity/BodyDrain.h"
#include "connectivity/PackageDownload.h"
#include "connectivity/installFirmware.h"
#include "connectivity/retryFirmware.h"
#include "ui_updateFirmware.h"

#include <QDebug>
#include <QNetworkReply>
#include <algorithm>
#include <limits>

namespace {
// No figure of a bad server may wrap round into the range of the bar, which ignores all others.
int barValue(qint64 percent)
{
    using Range = std::numeric_limits<int>;
    return int(std::clamp<qint64>(percent, Range::min(), Range::max()));
}
} // namespace

updateFirmware::updateFirmware(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    ui->button_checkUpdate->show();
    ui->button_update->hide();
    ui->label_newVersion->hide();
    ui->progressBar_update->hide();
    ui->label_process->hide();
    connect(ui->button_checkUpdate, &QPushButton::clicked, this,
            &updateFirmware::check_versionUpdate);
    for (PageHolder *holder : {ui->page_retryFirmware, ui->page_installFirmware})
        connect(holder, &PageHolder::signal_pageLeft, this,
                &updateFirmware::on_button_back_clicked);
}

void updateFirmware::setLimits(const DownloadLimits &newLimits)
{
    limits = newLimits;
}

void updateFirmware::on_button_back_clicked()
{
    beforeEmptying();
    leave();
}

void updateFirmware::beforeEmptying()
{
    // Whatever still runs, after a report of 0 bytes, ends with the page.
    qDeleteAll(findChildren<PackageDownload *>());
}

void updateFirmware::check_versionUpdate()
{
    if (!ui)
        return;
    qDebug() << "Need to update version! ";
    ui->button_checkUpdate->hide();
    ui->label_newVersion->show();
    ui->button_update->show();
    // Kept[check-adds-download]: connected anew at every check.
    connect(ui->button_update, &QPushButton::clicked, this, &updateFirmware::update_newVersion);
}

void updateFirmware::update_newVersion()
{
    if (!ui)
        return;
    qDebug() << "Update new version! ";
    ui->button_back->hide();
    ui->button_update->hide();
    ui->progressBar_update->setRange(0, 100);
    ui->progressBar_update->setValue(0);
    ui->progressBar_update->setTextVisible(false);
    ui->progressBar_update->show();
    ui->label_process->show();
    download_newVersion();
}

void updateFirmware::download_newVersion()
{
    if (!ui)
        return;
    qDebug() << "Download new version...";
    auto *download = new PackageDownload(firmwareAddress(), limits, this);
    connect(download, &PackageDownload::finished, this, &updateFirmware::finish_reply);
    connect(download, &PackageDownload::progressed, this, &updateFirmware::on_downloadProgress);
}

void updateFirmware::on_downloadProgress(qint64 iBytesReceive, qint64 iBytesTotal)
{
    if (!ui)
        return;
    qDebug() << "on_downloadProgress...";
    qDebug() << "iBytesReceive is" << iBytesReceive;
    // Kept[zero-bytes-fail]: also the report of 0 bytes that a server sends before the first.
    if (iBytesReceive == 0) {
        qDebug() << "Error comes...";
        jump_retryFirmware_page();
        return;
    }
    const qint64 iDownloadProcess = downloadPercent(iBytesReceive, iBytesTotal);
    qDebug() << "iDownloadProcess is" << iDownloadProcess;
    ui->progressBar_update->setValue(barValue(iDownloadProcess));
    QString text = tr("正在下载 ... %d%\n");
    ui->label_process->setText(
        text.replace(QLatin1String("%d"), QString::number(iDownloadProcess)));
}

void updateFirmware::finish_reply(QNetworkReply *reply)
{
    if (!ui || !reply)
        return;
    qDebug() << "finish_reply...";
    qDebug() << "statusCode is "
             << reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QString result = QString::fromLatin1(BodyDrain::headOf(reply));
    qDebug() << "result is " << result;
    // Where the length makes no sense, the end of the body is anywhere.
    if (reply->error() != QNetworkReply::NoError ||
        !isSoundLength(reply->rawHeader("Content-Length"))) {
        qDebug() << "Error comes...";
        jump_retryFirmware_page();
    } else {
        qDebug() << "No error result is " << result;
        jump_installFirmware_page();
    }
    reply->deleteLater();
}

void updateFirmware::jump_retryFirmware_page()
{
    connect(ui->page_retryFirmware->open<retryFirmware>(), &retryFirmware::signal_retryDownloadPage,
            this, &updateFirmware::back_download_page);
}

void updateFirmware::jump_installFirmware_page()
{
    ui->page_installFirmware->open<installFirmware>();
}

void updateFirmware::back_download_page()
{
    if (!ui)
        return;
    back_default_page();
    ui->button_back->show();
}
