#include "store/StoreFile.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <cstdio>
#include <sys/stat.h>

namespace {
// Dying flash damages one file after the other: they must not fill what is left of it.
constexpr int mostSetAside = 9;

// What tells the file that lies at a place from another one that lay there before.
struct Identity
{
    dev_t device = 0;
    ino_t file = 0;
    bool operator==(const Identity &) const = default;
};

// Of the file behind the default connection, of which the program has one, too.
Identity opened;
int openings = 0;

Identity identityOf(const QString &fileName)
{
    struct stat status
    {
    };
    if (stat(QFile::encodeName(fileName).constData(), &status) != 0)
        return {};
    return {status.st_dev, status.st_ino};
}

// A pipe would block whoever opens it, a folder refuse every row.
bool makeRoom(const QString &fileName)
{
    for (const char *suffix : {"", "-journal", "-wal", "-shm"}) {
        const QFileInfo place(fileName + QLatin1String(suffix));
        if (place.exists() && !place.isFile() && !setAside(place.filePath()))
            return false;
    }
    return true;
}

bool rename(const QString &from, const QString &to)
{
    // QFile would copy where it cannot rename.
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}
} // namespace

Refusal refusalOf(const QSqlQuery &query)
{
    if (query.isActive())
        return Refusal::None;
    // SQLite's own numbers. The low byte of its extended codes is the plain one.
    switch (query.lastError().nativeErrorCode().toInt() & 0xFF) {
    case 5: // busy
    case 6: // locked
        return Refusal::Locked;
    case 1:  // no such table or column, or a view
    case 11: // damaged
    case 19: // a constraint
    case 20: // a type that does not fit
    case 26: // no database
        return Refusal::Unusable;
    default:
        return Refusal::Passing;
    }
}

QSqlDatabase storeConnection()
{
    return QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false);
}

bool openStore(const QString &fileName)
{
    QSqlDatabase database = storeConnection();
    if (!database.isValid())
        database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    if (database.isOpen() && database.databaseName() == fileName && opened == identityOf(fileName))
        return true;
    database.close();
    database.setDatabaseName(fileName);
    if (!makeRoom(fileName) || !database.open())
        return false;
    waitForLock(lockLimit);
    opened = identityOf(fileName);
    ++openings;
    return true;
}

int storeOpenings()
{
    return openings;
}

void closeStore()
{
    storeConnection().close();
}

void waitForLock(std::chrono::milliseconds limit)
{
    QSqlQuery(storeConnection())
        .exec(QStringLiteral("pragma busy_timeout = %1").arg(limit.count()));
}

bool setAside(const QString &fileName)
{
    QString aside;
    for (int number = 1; number <= mostSetAside; ++number) {
        aside = fileName + QStringLiteral(".damaged%1").arg(number);
        if (!QFileInfo::exists(aside))
            break;
    }
    if (!rename(fileName, aside))
        return false;
    // SQLite would take them for those of the next file.
    for (const char *suffix : {"-journal", "-wal"})
        rename(fileName + QLatin1String(suffix), aside + QLatin1String(suffix));
    qDebug() << "DB cannot be used, set aside as" << aside;
    return true;
}
