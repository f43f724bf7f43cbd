#pragma once

#include <QByteArray>
#include <QString>

/// A serial line of the simulated device: a real pseudo terminal whose far end the test holds.
///
/// The near end stands as "<device root>/dev/<port name>", where the program opens it. Any number
/// may follow one another under the same name.
class PseudoTerminal
{
public:
    explicit PseudoTerminal(const QString &portName = QStringLiteral("ttyUSB0"));
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal &) = delete;
    PseudoTerminal &operator=(const PseudoTerminal &) = delete;

    /// Sends @p bytes to the program in one burst (up to 4 KiB). Open the near end first: what is
    /// sent to a closed one is lost. False once the line is hung up.
    bool send(const QByteArray &bytes);

    /// Everything that has arrived from the program since the last call. Never waits.
    QByteArray received();

    /// Pulls the plug: the program's side reports an error from now on.
    void hangUp();

private:
    int farEnd = -1;
    QString link;
};
