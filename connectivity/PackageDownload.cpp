#include "connectivity/PackageDownload.h"

#include "connectivity/BodyDrain.h"

#include <QFile>
#include <QFileInfo>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

namespace {
constexpr int redirectsFollowed = 5;
}

PackageDownload::PackageDownload(const QUrl &address, const DownloadLimits &limits, QObject *parent)
    : QObject(parent)
{
    // Kept[package-not-kept]: opened only to make it. A folder that cannot be written stops
    // nothing.
    QFile target(QFileInfo(address.path()).fileName());
    static_cast<void>(target.open(QIODevice::WriteOnly));

    QNetworkRequest request(address);
    request.setMaximumRedirectsAllowed(redirectsFollowed);
    // A packed answer would be unpacked in memory, and its progress has no total.
    request.setRawHeader("Accept-Encoding", "identity");
    auto *manager = new QNetworkAccessManager(this);
    connect(manager, &QNetworkAccessManager::finished, this, &PackageDownload::finished);
    QNetworkReply *reply = manager->get(request);
    connect(reply, &QNetworkReply::downloadProgress, this, &PackageDownload::progressed);
    new BodyDrain(reply, limits.size);
    QTimer::singleShot(limits.whole, reply, &QNetworkReply::abort);
    // The request's own time-out does not outlive a redirect.
    auto *silence = new QTimer(reply);
    const auto heard = [silence, limits] { silence->start(limits.silence); };
    connect(silence, &QTimer::timeout, reply, &QNetworkReply::abort);
    connect(reply, &QNetworkReply::redirected, silence, heard);
    connect(reply, &QNetworkReply::metaDataChanged, silence, heard);
    connect(reply, &QNetworkReply::readyRead, silence, heard);
    heard();
}
