#include "Names.h"
#include "acquisition/GetData.h"
#include "store/ZellDatabase.h"

void database()
{
    ZellDatabase database(nullptr);
    QThread *base = &database;
    base->start();
    GetData scheduler;
    QObject::connect(&scheduler, &GetData::signal_insertDataBaseItem, &database,
                     &ZellDatabase::InsertDataBaseItem);
    const QString table("PM2_5");
    database.CreateDataBase(QString("ZellQt4.db"));
    database.CreateDataBaseTable(QString("create table PM2_5 (UnixSec uint)"));
    database.InsertDataBaseItem(time_t(0), table, 0, 1);
    database.DeleteDataBaseTimeItem(table, 1L);
    database.DeleteDataBaseItem(table, table, QString("1"));
    call(database, &ZellDatabase::open_database, &ZellDatabase::QueryPm25Values,
         &ZellDatabase::close_database);
}
