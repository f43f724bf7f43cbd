#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

class QFile;

/// Files that keep nobody waiting: what else may stand in the place of one, a pipe above all, could
/// hold its reader for ever. Thread-safe.

/// Whether a character device, too, is meant.
enum class FileKind { Regular, RegularOrDevice };

/// Opens @p file in @p mode, ReadOnly or ReadWrite, where it exists and is of @p kind; makes none.
bool openExisting(QFile &file, QIODevice::OpenMode mode, FileKind kind);

/// Reads the regular file @p path, @p longest bytes at the most. Empty where it cannot be read or
/// is anything else.
QByteArray readRegularFile(const QString &path, qint64 longest);
