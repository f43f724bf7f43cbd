#pragma once

#include <QByteArray>
#include <QObject>

class QNetworkReply;

/// Reads the body of a reply as it arrives and drops it, so that a body of any size costs the same
/// small memory. Only the first bytes are kept, for the log. GUI thread.
class BodyDrain : public QObject
{
    Q_OBJECT

public:
    /// Drains @p source, which owns the drain. A body of more than @p largestBody bytes aborts it.
    BodyDrain(QNetworkReply *source, qint64 largestBody);

    /// Reads the first bytes of the body of any @p reply, drained or not: up to its first zero
    /// byte, 64 KiB at the most.
    static QByteArray headOf(QNetworkReply *reply);

private:
    void drain();

    QNetworkReply *reply;
    qint64 limit;
    qint64 received = 0;
    QByteArray kept;
};
