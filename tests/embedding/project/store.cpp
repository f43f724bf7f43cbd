#include "acquisition/GetData.h"
#include "store/ZellDatabase.h"

void database()
{
    ZellDatabase database(nullptr);
    QThread *base = &database;
    GetData scheduler;
    QObject::connect(&scheduler, &GetData::signal_insertDataBaseItem, &database,
                     &ZellDatabase::InsertDataBaseItem);
    base->start();
    database.open_database();
    database.CreateDataBase(QString("ZellQt4.db"));
    database.CreateDataBaseTable(QString("create table PM2_5 (UnixSec uint)"));
    database.InsertDataBaseItem(time_t(0), QString("PM2_5"), 0, 1);
    database.DeleteDataBaseTimeItem(QString("PM2_5"), 1L);
    database.DeleteDataBaseItem(QString("PM2_5"), QString("PM2_5"), QString("1"));
    database.QueryPm25Values();
    database.close_database();
}
