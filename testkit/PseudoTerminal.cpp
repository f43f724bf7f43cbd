#include "testkit/PseudoTerminal.h"

#include "testkit/Environment.h"

#include <QDir>
#include <QFile>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

PseudoTerminal::PseudoTerminal(const QString &portName)
    : farEnd(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
    , link(Environment::deviceRoot() + QStringLiteral("/dev/") + portName)
{
    if (farEnd < 0 || grantpt(farEnd) != 0 || unlockpt(farEnd) != 0)
        qFatal("no pseudo terminal");
    QDir().mkpath(Environment::deviceRoot() + QStringLiteral("/dev"));
    QFile::remove(link);
    if (!QFile::link(QString::fromLocal8Bit(ptsname(farEnd)), link))
        qFatal("cannot link %s", qPrintable(link));
}

PseudoTerminal::~PseudoTerminal()
{
    hangUp();
    QFile::remove(link);
}

bool PseudoTerminal::send(const QByteArray &bytes)
{
    return farEnd >= 0 && write(farEnd, bytes.constData(), size_t(bytes.size())) == bytes.size();
}

QByteArray PseudoTerminal::received()
{
    QByteArray bytes;
    char chunk[512];
    for (ssize_t n = 0; farEnd >= 0 && (n = read(farEnd, chunk, sizeof chunk)) > 0;)
        bytes.append(chunk, n);
    return bytes;
}

void PseudoTerminal::hangUp()
{
    if (farEnd >= 0)
        close(farEnd);
    farEnd = -1;
}
