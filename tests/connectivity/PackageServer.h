#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

/// What a PackageServer does once it has sent the fixed bytes of its answer.
enum class Then { Close, Hold, SendForEver, Trickle };

/// A download server on loopback that answers every request with the same bytes, good or bad.
class PackageServer : public QTcpServer
{
public:
    PackageServer(const QByteArray &answer, Then then)
        : bytes(answer)
        , after(then)
    {
        connect(this, &QTcpServer::newConnection, this, [this] {
            socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, peer = socket] { serve(peer); });
        });
        listen(QHostAddress::LocalHost);
    }

    QByteArray address(const QByteArray &path) const
    {
        return "http://127.0.0.1:" + QByteArray::number(serverPort()) + path;
    }

    QTcpSocket *socket = nullptr; ///< Of the latest connection.
    int requests = 0;
    qint64 sent = 0;

private:
    void serve(QTcpSocket *peer)
    {
        peer->readAll();
        ++requests;
        if (after == Then::SendForEver) {
            connect(peer, &QTcpSocket::bytesWritten, peer, [this, peer](qint64 count) {
                sent += count;
                while (peer->bytesToWrite() < 262144 && peer->write(block) > 0) {
                }
            });
        }
        peer->write(bytes);
        if (after == Then::Close)
            peer->disconnectFromHost();
        if (after == Then::Trickle) {
            auto *drops = new QTimer(peer);
            connect(drops, &QTimer::timeout, peer, [peer] { peer->write("x"); });
            drops->start(10);
        }
    }

    QByteArray bytes;
    QByteArray block = QByteArray(65536, 'x');
    Then after;
};
