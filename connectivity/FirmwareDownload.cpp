#include "connectivity/FirmwareDownload.h"

namespace {
constexpr const char *fixedAddress = "http://firmware.example.com/zell/ZellQt-1.1.pkg";
}

QUrl firmwareAddress()
{
    const QString address = qEnvironmentVariable("ZELL_FIRMWARE_URL");
    return QUrl(address.isEmpty() ? QString::fromLatin1(fixedAddress) : address);
}

qint64 downloadPercent(qint64 received, qint64 total)
{
    // Kept[negative-percent]: a total that is not known gives one.
    return total == 0 ? 0 : received * 100 / total;
}

bool isSoundLength(const QByteArray &header)
{
    bool isNumber = false;
    return header.isEmpty() || (header.toLongLong(&isNumber) >= 0 && isNumber);
}
