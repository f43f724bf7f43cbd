#pragma once

#include "connectivity/FirmwareDownload.h"

#include <QFileInfo>
#include <QNetworkRequest>
#include <QWidget>
#include <memory>

class QFile;
class QNetworkAccessManager;
class QNetworkReply;

namespace Ui {
class updateFirmware;
}

/// The firmware page: finds the new version, fetches its package over HTTP and ends on the retry or
/// the install page. The package is neither kept nor installed. GUI thread.
///
/// While a download runs the page cannot be left; DownloadLimits bounds how long that may be.
class updateFirmware : public QWidget
{
    Q_OBJECT

public:
    explicit updateFirmware(QWidget *parent = nullptr);
    ~updateFirmware() override;

    /// Holds for downloads started from now on.
    void setLimits(const DownloadLimits &newLimits);

public slots:
    void on_button_back_clicked();
    /// Finds the new version. Every further check makes the update button start one download more.
    void check_versionUpdate();
    void update_newVersion();
    /// Shows the download page as it was left, with its way back.
    void back_download_page();
    void download_newVersion();
    void finish_reply(QNetworkReply *reply);
    /// A report of 0 bytes counts as a failure. Bytes; a total of -1 is not known.
    void on_downloadProgress(qint64 iBytesReceive, qint64 iBytesTotal);

signals:
    void signal_backDefaultPage();

private:
    void jump_retryFirmware_page();
    void jump_installFirmware_page();

    std::unique_ptr<Ui::updateFirmware> ui;
    QFile *targetFile = nullptr;
    QFileInfo fileInfo;
    QNetworkAccessManager *manager = nullptr;
    QNetworkRequest request;
    QNetworkReply *runningReply = nullptr;
    DownloadLimits limits;
};
