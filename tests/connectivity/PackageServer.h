#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

/// What a PackageServer does once it has sent the fixed bytes of its answer.
enum class Then { Close, Hold, SendForEver, Trickle };

/// A download server on loopback that answers every request with the same bytes, good or bad. Only
/// a path that starts with "/moved" is sent on to the same name under "/".
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
        const QByteArray path = peer->readAll().split(' ').at(1);
        ++requests;
        if (path.startsWith("/moved")) {
            peer->write("HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: " + path.mid(6) +
                        "\r\n\r\n");
            return;
        }
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
