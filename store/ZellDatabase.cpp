#include "store/ZellDatabase.h"

#include "acquisition/GetData.h"
#include "shell/Global_cfg.h"
#include "store/StoreFile.h"
#include "store/StoreRules.h"

#include <QDebug>
#include <QFile>
#include <QSqlError>
#include <QSqlRecord>
#include <QVariant>
#include <limits>

using namespace std::chrono_literals;

ZellDatabase *zelldatabase = nullptr;

namespace {
constexpr auto retryPeriod = 1s;
// After a locked file has been waited for, what else the row brings is not even tried.
constexpr auto lockRest = 500ms;
// The latest ones: what is lost then lies together, and the history goes on to the present.
constexpr std::size_t mostWaiting = 8;

QString measurements()
{
    return QStringLiteral("ZellQt4.db");
}

struct Table
{
    QString name;
    QString columns;
    bool takesBoth = false;
    bool isMain = false;
};

const Table *findTable(const QString &name)
{
    const QString pm = QStringLiteral("PM2_5");
    const QString both = QStringLiteral("Temp,Hum");
    static const Table tables[] = {
        {.name = QStringLiteral("PM2_5"), .columns = pm, .isMain = true},
        {.name = QStringLiteral("PM2_5_NoWiFi"), .columns = pm},
        {.name = QStringLiteral("TempAndHum"), .columns = both, .takesBoth = true, .isMain = true},
        {.name = QStringLiteral("TempAndHum_NoWiFi"), .columns = both, .takesBoth = true},
    };
    for (const Table &table : tables) {
        if (table.name == name)
            return &table;
    }
    return nullptr;
}

QString insertStatement(const Table &table)
{
    return QStringLiteral("insert into %1 values( ?, ?, ?%2)")
        .arg(table.name, table.takesBoth ? QStringLiteral(", ?") : QString());
}

// What a table takes of the two values of an insert.
QVariantList valuesFor(const Table &table, int value, int value2)
{
    return table.takesBoth ? QVariantList{value, value2} : QVariantList{value2};
}

QVariantList rowFor(const Table &table, std::time_t time, int value, int value2)
{
    return QVariantList{quint32(time), localTimeText(time)} + valuesFor(table, value, value2);
}
} // namespace

ZellDatabase::ZellDatabase(QObject *parent)
    : QThread(parent)
{
    connect(&retryTimer, &QTimer::timeout, this, &ZellDatabase::retry);
}

ZellDatabase::~ZellDatabase()
{
    if (zelldatabase != this)
        return;
    if (!waiting.empty())
        retry();
    closeStore();
    zelldatabase = nullptr;
}

void ZellDatabase::run() {}

// Kept[open-close-hooks]: other programs call them.
void ZellDatabase::open_database() {}

void ZellDatabase::close_database() {}

void ZellDatabase::openMeasurements()
{
    CreateDataBase(measurements());
    makeTables();
}

void ZellDatabase::CreateDataBase(const QString &fileName)
{
    if (QFile::exists(fileName))
        qDebug() << "DB is exist!";
    else
        qDebug() << "DB is not exist,need to create!";
    if (!openStore(fileName))
        qDebug() << "Open DB fail!";
}

void ZellDatabase::CreateDataBaseTable(const QString &statement)
{
    execute(statement);
}

void ZellDatabase::DeleteDataBaseTimeItem(const QString &tableName, long now)
{
    const Table *table = findTable(tableName);
    const auto cutoff = quint32(retentionCutoff(now));
    if (!table || !table->isMain || rowsOf(tableName).endAfter(cutoff))
        return;
    if (change(QStringLiteral("delete from %1 where UnixSec <= ?").arg(tableName), {cutoff}))
        knownRows[tableName].drop(cutoff);
}

void ZellDatabase::DeleteDataBaseItem(const QString & /*tableName*/, const QString & /*column*/,
                                      const QString &value)
{
    // Kept[deletes-nothing]: the names never get into the statement, which SQLite refuses.
    execute(QStringLiteral("delete from %s where %s = ?"), {value});
}

// Kept[probe]: reads no rows and returns nothing.
void ZellDatabase::QueryPm25Values()
{
    qDebug() << "Querying";
    const QSqlQuery query = execute(QStringLiteral("Select * from pm2_5"));
    if (query.isActive())
        qDebug() << "pm data : " << query.size();
    else
        qDebug() << "ERROR";
}

void ZellDatabase::InsertDataBaseItem(time_t iTimeSec, const QString &tableName, int value,
                                      int value2)
{
    // First of all: a new scheduler may open the connection anew, and queries do not survive that.
    const bool online = networkAvailable();

    const Table *table = findTable(tableName);
    const bool isMain = table && table->isMain;
    // Behind the rows that wait: each is compared with the one before.
    if (isMain)
        waiting.push_back({iTimeSec, tableName, value, value2});
    // Kept[insert-fail]: told for every row that the main tables do not get, one repeated included.
    if (!isMain || !storeWaiting())
        qDebug() << "Insert fail!";

    // Kept[no-wifi-tables]: they stay empty, as every new scheduler believes in its network.
    if (online)
        return;
    if (!table || isMain ||
        !change(insertStatement(*table), rowFor(*table, iTimeSec, value, value2)))
        qDebug() << "Insert NoWiFi table fail!";
}

// Executes one statement, unless the store is closed or rests. The query is active then.
QSqlQuery ZellDatabase::execute(const QString &statement, const QVariantList &values)
{
    QSqlQuery query(storeConnection());
    if (!storeConnection().isOpen() || !restAfterLock.hasExpired())
        return query;
    if (query.prepare(statement)) {
        for (const QVariant &value : values)
            query.addBindValue(value);
        query.exec();
    }
    const Refusal refusal = refusalOf(query);
    if (refusal == Refusal::Locked)
        restAfterLock.setRemainingTime(lockRest);
    if (refusal != Refusal::None)
        lastTrouble = query.lastError().databaseText();
    return query;
}

// Executes a statement that writes. A file that was closed, moved or emptied is opened anew for it,
// one that refuses it all the same gives way to a new one, so that logging never ends for good.
bool ZellDatabase::change(const QString &statement, const QVariantList &values)
{
    if (!restAfterLock.hasExpired())
        return false;
    QSqlQuery query = execute(statement, values);
    if (query.isActive())
        fileState.changes += query.numRowsAffected();
    if (refusalOf(query) == Refusal::Passing || refusalOf(query) == Refusal::Unusable)
        query = changeAnew(statement, values);
    if (refusalOf(query) != Refusal::Unusable)
        return query.isActive();
    closeStore();
    setAside(measurements());
    return changeAnew(statement, values).isActive();
}

QSqlQuery ZellDatabase::changeAnew(const QString &statement, const QVariantList &values)
{
    closeStore();
    if (!openStore(measurements()))
        lastTrouble = QStringLiteral("it cannot be opened");
    // Without its tables a sound file would look unusable.
    if (!storeConnection().isOpen() || !makeTables())
        return QSqlQuery(storeConnection());
    return execute(statement, values);
}

// False where it has to be tried again. That a table exists, or is none, is for the rows to find.
bool ZellDatabase::makeTables()
{
    for (const QString &statement : tableStatements()) {
        const Refusal refusal = refusalOf(execute(statement));
        if (refusal == Refusal::Locked || refusal == Refusal::Passing)
            return false;
    }
    return true;
}

// All that is known is forgotten where the file may have been changed by others: by another
// program, or by another statement on this connection.
KnownRows &ZellDatabase::rowsOf(const QString &tableName)
{
    QSqlQuery query = execute(QStringLiteral("select data_version, schema_version, total_changes() "
                                             "from pragma_data_version, pragma_schema_version"));
    FileState now;
    const bool isKnown = query.next();
    if (isKnown)
        now = {storeOpenings(), query.value(0).toLongLong(), query.value(1).toLongLong(),
               query.value(2).toLongLong()};
    if (!isKnown || now != fileState)
        knownRows.clear();
    fileState = now;
    return knownRows[tableName];
}

// Reads the values of the row stored last, the first of its second. None where it is missing or
// unreadable.
QVariantList ZellDatabase::readLastRow(const QString &tableName, const QString &columns)
{
    const qint64 time = GetData::iLastUnixSec;
    // In one pass.
    QSqlQuery rows = execute(QStringLiteral("select min(rowid) filter (where UnixSec = %2), "
                                            "min(UnixSec) filter (where UnixSec > %2) "
                                            "from %1 where UnixSec >= %2")
                                 .arg(tableName)
                                 .arg(time));
    if (!rows.next())
        return {};
    QVariantList values;
    if (!rows.isNull(0)) {
        QSqlQuery last =
            execute(QStringLiteral("select %1 from %2 where rowid = ?").arg(columns, tableName),
                    {rows.value(0)});
        if (!last.next())
            return {};
        for (int column = 0; column < last.record().count(); ++column)
            values.append(last.value(column).toInt());
    }
    bool isNumber = false;
    const qint64 next = rows.value(1).toLongLong(&isNumber);
    knownRows[tableName].read(time, values, isNumber ? next : std::numeric_limits<qint64>::max());
    return values;
}

// Whether the row stored last holds its values. One that is missing or unreadable differs.
bool ZellDatabase::repeatsLastRow(const Row &row)
{
    const Table &table = *findTable(row.tableName);
    const std::optional<QVariantList> last = rowsOf(table.name).at(GetData::iLastUnixSec);
    return (last ? *last : readLastRow(table.name, table.columns)) ==
           valuesFor(table, row.value, row.value2);
}

bool ZellDatabase::insert(const Row &row)
{
    const Table &table = *findTable(row.tableName);
    if (!change(insertStatement(table), rowFor(table, row.time, row.value, row.value2)))
        return false;
    knownRows[table.name].add(quint32(row.time), valuesFor(table, row.value, row.value2));
    GetData::iLastUnixSec = row.time;
    return true;
}

// Stores the rows that wait, the oldest first. Whether the last of them got into its table.
bool ZellDatabase::storeWaiting()
{
    bool isStored = false;
    while (!waiting.empty()) {
        isStored = !repeatsLastRow(waiting.front());
        if (isStored && !insert(waiting.front())) {
            letRowsWait();
            return false;
        }
        waiting.pop_front();
    }
    if (retryTimer.isActive())
        qDebug() << "DB takes rows again, lost meanwhile:" << lostRows;
    retryTimer.stop();
    lostRows = 0;
    return isStored;
}

void ZellDatabase::letRowsWait()
{
    if (waiting.size() > mostWaiting) {
        waiting.pop_front();
        ++lostRows;
    }
    if (retryTimer.isActive())
        return;
    qDebug() << "DB takes no rows, they wait:" << lastTrouble;
    retryTimer.start(retryPeriod);
}

void ZellDatabase::retry()
{
    // Nobody waits for this attempt, so it does not wait for a lock.
    restAfterLock = {};
    waitForLock(0ms);
    if (openStore(measurements()) && makeTables())
        storeWaiting();
    waitForLock(lockLimit);
}

// Builds the scheduler that every insert adds and asks it whether there is a network.
bool ZellDatabase::networkAvailable()
{
    // Kept[scheduler-per-row]: all schedulers count towards the next insert, so each one built
    // makes the following come sooner: without a ceiling their number would grow exponentially, to
    // half a million within an hour. Past it one that exists answers; what a new one would have
    // done for the file is done all the same, or a file that was taken away would be lost for good.
    if (GetData::objects().size() >= GETDATA_MAX_OBJECTS) {
        openMeasurements();
        return GetData::objects().constFirst()->isNetworkAvailable();
    }
    schedulers.push_back(std::make_unique<GetData>());
    return schedulers.back()->isNetworkAvailable();
}
