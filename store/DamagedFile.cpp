#include "store/DamagedFile.h"

#include <QDebug>
#include <QFile>

namespace {
// SQLite's own numbers. The low byte of its extended codes is the plain one.
constexpr int sqliteCorrupt = 11;
constexpr int sqliteNotADatabase = 26;
// Dying flash damages one file after the other: they must not fill what is left of it.
constexpr int mostSetAside = 9;
} // namespace

bool isDamage(const QSqlError &error)
{
    const int code = error.nativeErrorCode().toInt() & 0xFF;
    return code == sqliteCorrupt || code == sqliteNotADatabase;
}

bool setAside(const QString &fileName)
{
    for (int number = 1; number <= mostSetAside; ++number) {
        const QString aside = fileName + QStringLiteral(".damaged%1").arg(number);
        // Refuses a name that is taken.
        if (QFile::rename(fileName, aside)) {
            qDebug() << "DB is damaged, set aside as" << aside;
            return true;
        }
    }
    qDebug() << "DB is damaged and cannot be set aside";
    return false;
}
