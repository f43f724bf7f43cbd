#pragma once

#include "connectivity/FirmwareDownload.h"

#include <QObject>

class QNetworkReply;

/// One download of the firmware package, from the request to the last byte; whatever still runs
/// ends with it. The package is neither kept nor installed: only its empty file is made in the
/// working directory. GUI thread.
class PackageDownload : public QObject
{
    Q_OBJECT

public:
    /// Asks for the package at @p address.
    PackageDownload(const QUrl &address, const DownloadLimits &limits, QObject *parent);

signals:
    /// Bytes of the body so far and in all; -1 for a total that is not known.
    void progressed(qint64 received, qint64 total);
    /// The last byte is there, or the download has failed.
    void finished(QNetworkReply *reply);
};
