#include "benchmarks/support/Row.h"
#include "store/ZellDatabase.h"

#include <QSqlDatabase>
#include <QVariant>

namespace {
// One that finds nothing to drop, and the row that follows it, in a file of 60,000 rows.
void pruneAndInsert(Row &row)
{
    constexpr std::time_t now = 1'479'692'460;
    constexpr int storedRows = 60'000;
    const QString table = QStringLiteral("TempAndHum");
    ZellDatabase database;
    zelldatabase = &database;
    database.openMeasurements();
    QSqlDatabase file = QSqlDatabase::database();
    file.transaction();
    QSqlQuery query(file);
    query.prepare(QStringLiteral("insert into TempAndHum values(?, '2016-11-20 00:00:00', ?, 40)"));
    for (int stored = storedRows; stored > 0; --stored) {
        query.bindValue(0, quint32(now - 8 * stored));
        query.bindValue(1, stored % 50);
        query.exec();
    }
    query.finish();
    if (!file.commit())
        qFatal("no rows");
    int further = 0;
    row.turns([&] {
        ++further;
        database.DeleteDataBaseTimeItem(table, now);
        database.InsertDataBaseItem(now + further, table, further % 50, 40);
    });
}

const Rows
    rows({{.name = "prune and insert at 60000 rows", .measure = pruneAndInsert, .samples = 60}});
} // namespace
