#include "device/RegularFile.h"

#include <QFile>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

bool openExisting(QFile &file, QIODevice::OpenMode mode, FileKind kind)
{
    const int access = mode.testFlag(QIODevice::WriteOnly) ? O_RDWR : O_RDONLY;
    // Looked at once it is open: until then something else could take its place.
    const int descriptor = ::open(QFile::encodeName(file.fileName()).constData(),
                                  access | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    struct stat status
    {
    };
    const bool isKnown = ::fstat(descriptor, &status) == 0;
    const bool isDevice = kind == FileKind::RegularOrDevice && S_ISCHR(status.st_mode);
    if (isKnown && (S_ISREG(status.st_mode) || isDevice) &&
        file.open(descriptor, mode, QFileDevice::AutoCloseHandle))
        return true;
    ::close(descriptor);
    return false;
}

QByteArray readRegularFile(const QString &path, qint64 longest)
{
    QFile file(path);
    if (!openExisting(file, QIODevice::ReadOnly | QIODevice::Unbuffered, FileKind::Regular))
        return {};
    return file.read(longest);
}
