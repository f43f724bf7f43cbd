#include "walk/FirmwareServer.h"

#include <QTimer>
#include <chrono>

namespace {
constexpr int packageSize = 100'000;
constexpr int sentAtFirst = 46'000;
constexpr std::chrono::milliseconds progressInterval{300};
} // namespace

FirmwareServer::FirmwareServer()
{
    if (!listen(QHostAddress::LocalHost))
        qFatal("no port for the firmware server");
    qputenv("ZELL_FIRMWARE_URL",
            "http://127.0.0.1:" + QByteArray::number(serverPort()) + "/zell/ZellQt-1.1.pkg");
    connect(this, &QTcpServer::newConnection, this, [this] {
        client = nextPendingConnection();
        connect(client, &QTcpSocket::readyRead, this, &FirmwareServer::answer);
        connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
    });
}

void FirmwareServer::answer()
{
    if (!client->readAll().contains("\r\n\r\n"))
        return;
    client->write("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(packageSize) +
                  "\r\n\r\n" + QByteArray(sentAtFirst / 2, 'z'));
    // A client reports progress no sooner than a tenth of a second after it began.
    QTimer::singleShot(progressInterval, client,
                       [this] { client->write(QByteArray(sentAtFirst / 2, 'z')); });
}

void FirmwareServer::finish()
{
    if (client)
        client->write(QByteArray(packageSize - sentAtFirst, 'z'));
}

void FirmwareServer::drop()
{
    if (client)
        client->abort();
}
