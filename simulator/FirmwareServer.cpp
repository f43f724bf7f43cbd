#include "simulator/FirmwareServer.h"

#include <QTcpSocket>
#include <QTimer>
#include <algorithm>
#include <memory>

namespace simulator {
namespace {
constexpr qsizetype longestRequest = 16 * kibibyte;
// A client that does not read must not fill this process's memory.
constexpr qint64 mostUnsent = 1024 * kibibyte;

// Sends one answer on one socket, chunk by chunk, and lives as long as the socket.
class AnswerSender : public QObject
{
public:
    AnswerSender(FirmwareAnswer answerToSend, QTcpSocket *clientSocket)
        : QObject(clientSocket)
        , answer(std::move(answerToSend))
        , socket(clientSocket)
    {
        connect(&timer, &QTimer::timeout, this, &AnswerSender::sendChunk);
        socket->write(answer.head);
        timer.start(answer.pause);
        sendChunk();
    }

private:
    void sendChunk()
    {
        if (socket->bytesToWrite() > mostUnsent)
            return;
        const bool endless = answer.bodySize < 0;
        const qint64 size =
            endless ? answer.chunkSize : std::min(answer.chunkSize, answer.bodySize - sent);
        socket->write(firmwareBytes(sent, size));
        sent += size;
        if (endless || sent < answer.bodySize)
            return;
        timer.stop();
        if (answer.ending == FirmwareAnswer::Ending::Close)
            socket->disconnectFromHost();
    }

    FirmwareAnswer answer;
    QTcpSocket *socket;
    QTimer timer;
    qint64 sent = 0;
};
} // namespace

FirmwareServer::FirmwareServer(const QList<FirmwareAnswer> &answerCycle, QObject *parent)
    : QObject(parent)
    , answers(answerCycle)
{
    connect(&server, &QTcpServer::newConnection, this, &FirmwareServer::acceptConnections);
}

bool FirmwareServer::listen()
{
    return server.listen(QHostAddress::LocalHost);
}

QString FirmwareServer::errorString() const
{
    return server.errorString();
}

QString FirmwareServer::url() const
{
    return QStringLiteral("http://127.0.0.1:%1%2")
        .arg(server.serverPort())
        .arg(QLatin1String(firmwarePath));
}

void FirmwareServer::dropClients()
{
    for (auto *socket : server.findChildren<QTcpSocket *>())
        socket->abort();
}

qsizetype FirmwareServer::clients() const
{
    return server.findChildren<QTcpSocket *>().size();
}

void FirmwareServer::acceptConnections()
{
    while (QTcpSocket *socket = server.nextPendingConnection()) {
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QTcpSocket::bytesWritten, this, [this](qint64 bytes) { sent += bytes; });
        connect(socket, &QTcpSocket::readyRead, this,
                [this, socket, request = std::make_shared<QByteArray>()] {
                    readRequest(socket, *request);
                });
    }
}

void FirmwareServer::readRequest(QTcpSocket *socket, QByteArray &request)
{
    constexpr QByteArrayView blankLine("\r\n\r\n");
    if (request.contains(blankLine)) {
        socket->readAll(); // one request per connection; what follows is dropped
        return;
    }
    request += socket->readAll();
    if (request.contains(blankLine)) {
        const FirmwareAnswer &package = answers.at(served % answers.size());
        if (asksForFirmware(request))
            ++served;
        new AnswerSender(answerTo(request, package), socket);
    } else if (request.size() > longestRequest) {
        socket->abort();
    }
}

} // namespace simulator
