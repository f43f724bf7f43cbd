#pragma once

#include "connectivity/FirmwareDownload.h"
#include "pages/FormPage.h"

class QNetworkReply;

namespace Ui {
class updateFirmware;
}

/// The firmware page: finds the new version, fetches its package over HTTP and ends on the retry or
/// the install page. The package is neither kept nor installed. GUI thread.
///
/// While a download runs the page cannot be left; DownloadLimits bounds how long that may be.
class updateFirmware : public FormPage<Ui::updateFirmware>
{
    Q_OBJECT

public:
    explicit updateFirmware(QWidget *parent = nullptr);

    /// Bounds the downloads that start from now on.
    void setLimits(const DownloadLimits &newLimits);

    void on_button_back_clicked() override;

public slots:
    /// Finds the new version. Every further check makes the update button start one download more.
    void check_versionUpdate();
    void update_newVersion();
    /// Shows the download page as it was left, with its way back.
    void back_download_page();
    void download_newVersion();
    /// Ends on the page that @p reply deserves and deletes it. Any reply will do.
    void finish_reply(QNetworkReply *reply);
    /// Shows how far a download has come, in bytes; a total of -1 is not known. 0 bytes are a
    /// failure.
    void on_downloadProgress(qint64 iBytesReceive, qint64 iBytesTotal);

protected:
    void beforeEmptying() override;

private:
    void jump_retryFirmware_page();
    void jump_installFirmware_page();

    DownloadLimits limits;
};
