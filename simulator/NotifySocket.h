#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>

namespace simulator {

/// Hears what a program tells its service manager, where none runs.
class NotifySocket : public QObject
{
    Q_OBJECT
public:
    /// Listens at an address of its own. Ends the program where the system has none to give.
    explicit NotifySocket(QObject *parent = nullptr);
    ~NotifySocket() override;

    /// What the program finds in NOTIFY_SOCKET.
    QByteArray address() const;

signals:
    /// The program sent @p text, such as "READY=1" or "WATCHDOG=1".
    void received(const QByteArray &text);

private:
    void read();

    QSocketNotifier notifier;
};

} // namespace simulator
