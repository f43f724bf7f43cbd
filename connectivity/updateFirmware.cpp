#include "connectivity/updateFirmware.h"

#include "connectivity/BodyDrain.h"
#include "connectivity/installFirmware.h"
#include "connectivity/retryFirmware.h"
#include "pages/PagePattern.h"
#include "ui_updateFirmware.h"

#include <QDebug>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <algorithm>
#include <limits>

namespace {
constexpr int redirectsFollowed = 5;

// No figure of a bad server may wrap round into the range of the bar, which ignores all others.
int barValue(qint64 percent)
{
    using Range = std::numeric_limits<int>;
    return int(std::clamp<qint64>(percent, Range::min(), Range::max()));
}
} // namespace

updateFirmware::updateFirmware(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::updateFirmware>())
{
    ui->setupUi(this);
    ui->button_checkUpdate->show();
    ui->button_update->hide();
    ui->label_newVersion->hide();
    ui->progressBar_update->hide();
    ui->label_process->hide();
    connect(ui->button_checkUpdate, &QPushButton::clicked, this,
            &updateFirmware::check_versionUpdate);
    request.setMaximumRedirectsAllowed(redirectsFollowed);
    // A packed answer would be unpacked in memory, and its progress has no total.
    request.setRawHeader("Accept-Encoding", "identity");
}

updateFirmware::~updateFirmware() = default;

void updateFirmware::setLimits(const DownloadLimits &newLimits)
{
    limits = newLimits;
}

void updateFirmware::on_button_back_clicked()
{
    // The page is left for good. Whatever still runs, after a report of 0 bytes, ends with it.
    for (auto *running : findChildren<QNetworkAccessManager *>()) {
        running->disconnect(this);
        delete running;
    }
    qDeleteAll(findChildren<QFile *>());
    emit signal_backDefaultPage();
}

void updateFirmware::check_versionUpdate()
{
    qDebug() << "Need to update version! ";
    ui->button_checkUpdate->hide();
    ui->label_newVersion->show();
    ui->button_update->show();
    connect(ui->button_update, &QPushButton::clicked, this, &updateFirmware::update_newVersion);
}

void updateFirmware::update_newVersion()
{
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
    qDebug() << "Download new version...";
    const QUrl address = firmwareAddress();
    fileInfo.setFile(address.path());
    // Opened only to make the empty target: a folder that cannot be written stops no download.
    targetFile = new QFile(fileInfo.fileName(), this);
    static_cast<void>(targetFile->open(QIODevice::WriteOnly));

    request.setUrl(address);
    request.setTransferTimeout(int(limits.silence.count()));
    manager = new QNetworkAccessManager(this);
    connect(manager, &QNetworkAccessManager::finished, this, &updateFirmware::finish_reply);
    runningReply = manager->get(request);
    connect(runningReply, &QNetworkReply::downloadProgress, this,
            &updateFirmware::on_downloadProgress);
    new BodyDrain(runningReply, limits.size);
    QTimer::singleShot(limits.whole, runningReply, &QNetworkReply::abort);
}

void updateFirmware::on_downloadProgress(qint64 iBytesReceive, qint64 iBytesTotal)
{
    qDebug() << "on_downloadProgress...";
    qDebug() << "iBytesReceive is" << iBytesReceive;
    if (iBytesReceive == 0) {
        qDebug() << "Error comes...";
        jump_retryFirmware_page();
        return;
    }
    const qint64 iDownloadProcess = downloadPercent(iBytesReceive, iBytesTotal);
    qDebug() << "iDownloadProcess is" << iDownloadProcess;
    ui->progressBar_update->setValue(barValue(iDownloadProcess));
    ui->label_process->setText(downloadText(tr("正在下载 ... %d%\n"), iDownloadProcess));
}

void updateFirmware::finish_reply(QNetworkReply *reply)
{
    qDebug() << "finish_reply...";
    qDebug() << "statusCode is "
             << reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    QString result;
    if (BodyDrain *body = BodyDrain::of(reply)) {
        body->drain();
        result = QString::fromLatin1(body->head());
    }
    qDebug() << "result is " << result;
    if (reply->error() != QNetworkReply::NoError) {
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
    auto *page = openPage<retryFirmware>(this, ui->stackedWidget, ui->page_retryFirmware,
                                         &updateFirmware::on_button_back_clicked);
    connect(page, &retryFirmware::signal_retryDownloadPage, this,
            &updateFirmware::back_download_page);
}

void updateFirmware::jump_installFirmware_page()
{
    openPage<installFirmware>(this, ui->stackedWidget, ui->page_installFirmware,
                              &updateFirmware::on_button_back_clicked);
}

void updateFirmware::back_download_page()
{
    ui->stackedWidget->setCurrentWidget(ui->page_firmware);
    ui->button_back->show();
}
