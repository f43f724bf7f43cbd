#include "acquisition/GetData.h"
#include "benchmarks/support/Row.h"
#include "shell/Global_cfg.h"
#include "simulator/SysfsText.h"
#include "store/ZellDatabase.h"
#include "testkit/Environment.h"

namespace {
// Every second of the life of a device that has run for hours, on the GUI thread.
void tickOfAllSchedulers(Row &row)
{
    if (!simulator::replaceFile(Environment::device().climateFile(),
                                simulator::climateText(23.456, 45.678)))
        qFatal("no sensor");
    ZellDatabase database;
    zelldatabase = &database;
    for (int stored = 1; stored <= GETDATA_MAX_OBJECTS; ++stored)
        database.InsertDataBaseItem(stored, QStringLiteral("TempAndHum"), stored, 0);

    const auto tick = [] {
        for (GetData *scheduler : GetData::objects())
            QMetaObject::invokeMethod(scheduler, "refresh_allData");
    };
    const auto rest = [] {
        GetData::iTempHumNum = 0; // no row is due
        for (GetData *scheduler : GetData::objects())
            scheduler->wait();
    };
    row.turns(tick, rest);
}

const Rows rows({{.name = "tick of 32 schedulers", .measure = tickOfAllSchedulers}});
} // namespace
