#pragma once

#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

/// A firmware server that stops in the middle of the package until it is told how to go on.
/// Puts its address into ZELL_FIRMWARE_URL.
class FirmwareServer : public QTcpServer
{
    Q_OBJECT

public:
    FirmwareServer();

    /// Sends the rest of the package.
    void finish();
    /// Closes the connection in the middle of the package.
    void drop();

private:
    void answer();

    QPointer<QTcpSocket> client;
};
