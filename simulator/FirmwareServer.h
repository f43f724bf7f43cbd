#pragma once

#include "simulator/FirmwareAnswer.h"

#include <QObject>
#include <QTcpServer>

namespace simulator {

/// The HTTP server of the firmware package, on a free port of the loopback address. It sends at a
/// pace that can be seen on a progress bar and can fail in every way of FirmwareFault.
class FirmwareServer : public QObject
{
    Q_OBJECT
public:
    /// Request after request is answered with the next of @p faultCycle, which must not be empty.
    explicit FirmwareServer(const QList<FirmwareFault> &faultCycle, QObject *parent = nullptr);

    /// False where no port could be had; errorString() says why.
    bool listen();
    QString errorString() const;

    /// Address of the package. Valid after listen().
    QString url() const;

private:
    void acceptConnections();
    void readRequest(QTcpSocket *socket, QByteArray &request);

    QTcpServer server;
    QList<FirmwareFault> faults;
    qsizetype served = 0;
};

} // namespace simulator
