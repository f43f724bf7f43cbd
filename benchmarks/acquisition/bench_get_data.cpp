#include "acquisition/GetData.h"
#include "benchmarks/support/Yardstick.h"
#include "shell/Global_cfg.h"
#include "simulator/SysfsText.h"
#include "store/ZellDatabase.h"
#include "testkit/Environment.h"

namespace {
// Every second of the life of a device that has run for hours, on the GUI thread.
void tickOfAllSchedulers(benchmark::State &state)
{
    constexpr double limit = 80;
    if (!simulator::replaceFile(Environment::device().climateFile(),
                                simulator::climateText(23.456, 45.678)))
        qFatal("no sensor");
    ZellDatabase database;
    zelldatabase = &database;
    for (int row = 1; row <= GETDATA_MAX_OBJECTS; ++row)
        database.InsertDataBaseItem(row, QStringLiteral("TempAndHum"), row, 0);

    const auto tick = [] {
        for (GetData *scheduler : GetData::objects())
            QMetaObject::invokeMethod(scheduler, "refresh_allData");
    };
    const auto rest = [] {
        GetData::iTempHumNum = 0; // no row is due
        for (GetData *scheduler : GetData::objects())
            scheduler->wait();
    };
    Yardstick::measure(state, limit, tick, rest);
}
BENCHMARK(tickOfAllSchedulers)->UseManualTime()->Iterations(300);
} // namespace
