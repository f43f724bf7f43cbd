#include "connectivity/BodyDrain.h"

#include <QNetworkReply>
#include <algorithm>
#include <array>

namespace {
constexpr qint64 keptBytes = qint64(64) * 1024;
// Room for what arrives within one turn of the event loop.
constexpr qint64 bufferBytes = qint64(256) * 1024;
} // namespace

BodyDrain::BodyDrain(QNetworkReply *source, qint64 largestBody)
    : QObject(source)
    , reply(source)
    , limit(largestBody)
{
    // Without a limit the reply takes in all the server sends while the event loop is busy.
    reply->setReadBufferSize(bufferBytes);
    connect(reply, &QNetworkReply::readyRead, this, &BodyDrain::drain);
}

QByteArray BodyDrain::headOf(QNetworkReply *reply)
{
    QByteArray head;
    if (auto *drained = reply->findChild<BodyDrain *>(QString(), Qt::FindDirectChildrenOnly)) {
        drained->drain();
        head = drained->kept;
    } else if (reply->isReadable()) {
        head = reply->read(keptBytes);
    }
    const qsizetype zero = head.indexOf('\0');
    return zero < 0 ? head : head.first(zero);
}

void BodyDrain::drain()
{
    // A reply that was given up is closed before it says that it has finished.
    if (!reply->isOpen())
        return;
    std::array<char, 16384> block{};
    qint64 count = 0;
    while ((count = reply->read(block.data(), qint64(block.size()))) > 0) {
        received += count;
        if (kept.size() < keptBytes)
            kept.append(block.data(), std::min(count, keptBytes - kept.size()));
    }
    // Aborting inside a signal of the reply's own reading is not safe, so it waits its turn.
    if (received > limit)
        QMetaObject::invokeMethod(reply, &QNetworkReply::abort, Qt::QueuedConnection);
}
