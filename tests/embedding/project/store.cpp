#include "Names.h"
#include "acquisition/GetData.h"
#include "store/ZellDatabase.h"

static_assert(has<ZellDatabase, QThread>(
    &ZellDatabase::CreateDataBase, &ZellDatabase::CreateDataBaseTable,
    &ZellDatabase::InsertDataBaseItem, &ZellDatabase::DeleteDataBaseTimeItem,
    &ZellDatabase::DeleteDataBaseItem, &ZellDatabase::QueryPm25Values, &ZellDatabase::open_database,
    &ZellDatabase::close_database, &zelldatabase));

// Rows travel from any scheduler to any database.
void storeRows(const GetData *scheduler, ZellDatabase *database)
{
    QObject::connect(scheduler, &GetData::signal_insertDataBaseItem, database,
                     &ZellDatabase::InsertDataBaseItem);
}
