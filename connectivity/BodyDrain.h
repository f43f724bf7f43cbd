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

    /// The drain of @p reply, or null where it has none.
    static BodyDrain *of(const QNetworkReply *reply);

    /// Takes in what has arrived up to now. Called by itself on every arrival.
    void drain();

    /// The first bytes of the body up to its first zero byte, 1 KiB at the most.
    QByteArray head() const;

private:
    QNetworkReply *reply;
    qint64 limit;
    qint64 received = 0;
    QByteArray kept;
};
