#pragma once

#include "simulator/FirmwareAnswer.h"

#include <QObject>
#include <QTcpServer>

namespace simulator {

/// The HTTP server of the firmware package, on a free port of the loopback address. It sends at the
/// pace of its answers and fails in every way that they describe.
class FirmwareServer : public QObject
{
    Q_OBJECT
public:
    /// Answers one download after the other with the next of @p answerCycle, which must not be
    /// empty.
    explicit FirmwareServer(const QList<FirmwareAnswer> &answerCycle, QObject *parent = nullptr);

    /// Starts to serve. False where no port could be had; errorString() says why.
    bool listen();
    QString errorString() const;

    /// Returns the address of the package. Valid after listen().
    QString url() const;

    /// Cuts off every client.
    void dropClients();
    qsizetype clients() const;

    qsizetype downloads() const { return served; } ///< how many were asked for
    qint64 bytesSent() const { return sent; }      ///< to all clients together, heads included

private:
    void acceptConnections();
    void readRequest(QTcpSocket *socket, QByteArray &request);

    QTcpServer server;
    QList<FirmwareAnswer> answers;
    qsizetype served = 0;
    qint64 sent = 0;
};

} // namespace simulator
