#pragma once

#include <QByteArray>
#include <QUrl>
#include <chrono>

/// Where a download is given up. The owner cannot leave the page while one runs, so each of them
/// bounds how long a bad server can hold the page.
struct DownloadLimits
{
    /// Longest silence of the server.
    std::chrono::milliseconds silence = std::chrono::seconds(30);
    /// Longest time from the request to the last byte.
    std::chrono::milliseconds whole = std::chrono::minutes(30);
    /// Largest body in bytes, far above any package of this device.
    qint64 size = qint64(2) * 1024 * 1024 * 1024;
};

/// Tells the address of the package: the fixed one, or the value of the environment variable
/// ZELL_FIRMWARE_URL where that is set and not empty.
QUrl firmwareAddress();

/// Works out @p received of @p total bytes in per cent, truncated. A total of -1 (not known) gives
/// a negative figure, a total of 0 gives 0.
qint64 downloadPercent(qint64 received, qint64 total);

/// Tells whether @p header, the length that a server announces for a body, is a whole number from 0
/// on, or empty: not announced.
bool isSoundLength(const QByteArray &header);
