#include "fuzz/Targets.h"

#include <QtGlobal>

std::span<const FuzzTarget> fuzzTargets()
{
    static constexpr FuzzTarget targets[] = {
        {"chart-ranges", fuzzChartRanges},
        {"color-names", fuzzColorNames},
        {"frame", fuzzFrame},
        {"language-file", fuzzLanguageFile},
        {"nearest-dot", fuzzNearestDot},
        {"scan-file", fuzzScanFile},
        {"sensor-text", fuzzSensorText},
        {"time-zones", fuzzTimeZones},
    };
    return targets;
}

void hold(bool kept, const char *promise)
{
    if (!kept)
        qFatal("broken: %s", promise);
}
