#include "simulator/Scenario.h"

#include <algorithm>

namespace simulator {
namespace {
struct NamedFault
{
    const char *name;
    FirmwareFault fault;
};

constexpr NamedFault firmwareFaults[] = {
    {"refused", FirmwareFault::Refused},
    {"cut-off", FirmwareFault::CutOff},
    {"stalled", FirmwareFault::Stalled},
    {"endless", FirmwareFault::Endless},
    {"unknown-length", FirmwareFault::UnknownLength},
    {"zero-report", FirmwareFault::ZeroReport},
};

QList<FirmwareFault> everyFirmwareFault()
{
    QList<FirmwareFault> faults;
    for (const NamedFault &named : firmwareFaults)
        faults.append(named.fault);
    return faults;
}

// The names of the row "garbage" of the wireless scan: what a neighbourhood can come up with.
QStringList oddNetworks()
{
    return {QStringLiteral("Studio"),    QString(),
            QStringLiteral("$(reboot)"), QStringLiteral("a \"quoted\" name"),
            QStringLiteral("Studio"),    QStringLiteral("thirty-two characters in one row")};
}

QList<Scenario> storeScenarios()
{
    return {
        {.name = QStringLiteral("full-disk"),
         .summary = QStringLiteral("no room for the store from second 30 to 150"),
         .store = StoreFault::Full},
        {.name = QStringLiteral("read-only"),
         .summary = QStringLiteral("a store that cannot be written from second 30 to 150"),
         .store = StoreFault::ReadOnly},
        {.name = QStringLiteral("locked-store"),
         .summary = QStringLiteral("a store locked by another process from second 30 to 150"),
         .store = StoreFault::Locked},
    };
}

QList<Scenario> deviceScenarios()
{
    return {
        {.name = QStringLiteral("steady"), .summary = QStringLiteral("an ordinary day, slowly")},
        {.name = QStringLiteral("cold"),
         .summary = QStringLiteral("below zero, dry air"),
         .temperature = {.mean = -5, .swing = 3, .peakHour = 15, .ripple = 0.2},
         .humidity = {.mean = 20, .swing = 4, .peakHour = 5, .ripple = 0.5}},
        {.name = QStringLiteral("no-sensor"),
         .summary = QStringLiteral("no serial device and no sensor files"),
         .hasSensors = false},
        {.name = QStringLiteral("slow-sensor"),
         .summary = QStringLiteral("the temperature sensor answers after a fifth of a second"),
         .sensorDelay = 200},
        {.name = QStringLiteral("garbage"),
         .summary = QStringLiteral("broken frames, sensor texts and network names"),
         .frames = {FrameFault::None, FrameFault::BadChecksum, FrameFault::Split,
                    FrameFault::Merged, FrameFault::Short, FrameFault::Long, FrameFault::BadHeader,
                    FrameFault::Noise},
         .texts = {TextFault::None, TextFault::None, TextFault::Empty, TextFault::Short,
                   TextFault::Letters, TextFault::Binary, TextFault::Huge},
         .networks = oddNetworks()},
        {.name = QStringLiteral("unplug"),
         .summary = QStringLiteral("the serial device vanishes in mid-window and comes back"),
         .framesUntilUnplug = 4},
        {.name = QStringLiteral("no-wifi"),
         .summary = QStringLiteral("the wireless scan fails"),
         .networks = {}},
        {.name = QStringLiteral("hung-scan"),
         .summary = QStringLiteral("the wireless scan does not end"),
         .scanHangs = true},
        {.name = QStringLiteral("bad-firmware"),
         .summary = QStringLiteral("each download fails in the next way"),
         .firmware = everyFirmwareFault()},
    };
}
} // namespace

const QList<Scenario> &scenarios()
{
    static const QList<Scenario> table = deviceScenarios() + storeScenarios();
    return table;
}

QStringList firmwareFaultNames()
{
    QStringList names;
    for (const NamedFault &named : firmwareFaults)
        names.append(QLatin1String(named.name));
    return names;
}

std::optional<Scenario> findScenario(const QString &name)
{
    const qsizetype colon = name.indexOf(QLatin1Char(':'));
    const QString base = name.left(colon);
    const auto row = std::find_if(scenarios().cbegin(), scenarios().cend(),
                                  [&](const Scenario &scenario) { return scenario.name == base; });
    if (row == scenarios().cend())
        return std::nullopt;
    if (colon < 0)
        return *row;

    const qsizetype fault = firmwareFaultNames().indexOf(name.sliced(colon + 1));
    if (fault < 0 || row->firmware.size() == 1)
        return std::nullopt;
    Scenario narrowed = *row;
    narrowed.name = name;
    narrowed.firmware = {firmwareFaults[fault].fault};
    return narrowed;
}

} // namespace simulator
