#include "simulator/SimulatedDevice.h"

#include "device/DevicePath.h"

#include <utility>

using namespace std::chrono_literals;

namespace simulator {
namespace {
constexpr auto refreshPeriod = 1s;

const QString rootVariable = QStringLiteral("ZELL_DEVICE_ROOT");
const QString firmwareVariable = QStringLiteral("ZELL_FIRMWARE_URL");
const QString pathVariable = QStringLiteral("PATH");
// Where the system has a proxy, the firmware server on loopback must not be asked for through it.
const QString noProxyVariable = QStringLiteral("no_proxy");

QList<FirmwareAnswer> answersOf(const Scenario &scenario)
{
    QList<FirmwareAnswer> answers;
    for (const FirmwareFault fault : scenario.firmware)
        answers.append(firmwareAnswer(fault));
    return answers;
}
} // namespace

SimulatedDevice::SimulatedDevice(const QString &rootPath, Settings deviceSettings, QObject *parent)
    : QObject(parent)
    , root(rootPath)
    , settings(std::move(deviceSettings))
    , firmware(answersOf(settings.scenario))
    , random(settings.seed)
{
    if (settings.scenario.hasSensors)
        sensor = std::make_unique<ParticleSensor>(
            settings.scenario,
            ParticleSensor::Settings{.serialDevice = root.serialDevice(),
                                     .supplySwitch = root.supplySwitch(),
                                     .seed = settings.seed},
            [this] { return now(settings.scenario.particles); });
    connect(&refreshTimer, &QTimer::timeout, this, &SimulatedDevice::refresh);
}

bool SimulatedDevice::start(QString *problem)
{
    if (!root.create(settings.scenario.networks, problem))
        return false;
    if (!firmware.listen()) {
        *problem = QStringLiteral("no port for the firmware server: ") + firmware.errorString();
        return false;
    }
    if (sensor && !sensor->start()) {
        *problem = QStringLiteral("cannot make the serial device ") + root.serialDevice();
        return false;
    }
    clock.start();
    refresh();
    refreshTimer.start(refreshPeriod);
    return true;
}

QProcessEnvironment SimulatedDevice::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(rootVariable, root.path());
    environment.insert(firmwareVariable, firmware.url());
    environment.insert(pathVariable,
                       root.programFolder() + QLatin1Char(':') + environment.value(pathVariable));
    const QString noProxy = environment.value(noProxyVariable);
    environment.insert(noProxyVariable,
                       (noProxy.isEmpty() ? QString() : noProxy + QLatin1Char(',')) +
                           QStringLiteral("127.0.0.1"));
    return environment;
}

QString SimulatedDevice::environmentLines() const
{
    const QProcessEnvironment values = environment();
    QString lines;
    for (const QString &name : {rootVariable, firmwareVariable, noProxyVariable})
        lines += QStringLiteral("export %1=%2\n").arg(name, shellQuoted(values.value(name)));
    return lines +
           QStringLiteral("export PATH=%1:\"$PATH\"\n").arg(shellQuoted(root.programFolder()));
}

double SimulatedDevice::now(const DayCurve &curve) const
{
    const double seconds = double(clock.elapsed()) / 1000 * settings.speed;
    return curve.at(startOfRun + seconds, settings.seed);
}

void SimulatedDevice::refresh()
{
    if (!sensor)
        return;
    const Scenario &scenario = settings.scenario;
    const TextFault fault = scenario.texts.at(refreshes++ % scenario.texts.size());
    replaceFile(
        root.climateFile(),
        brokenText(fault, climateText(now(scenario.temperature), now(scenario.humidity)), random));
    replaceFile(root.lightFile(), brokenText(fault, lightText(now(scenario.light)), random));
    sensor->keepSupplySwitch();
}

} // namespace simulator
