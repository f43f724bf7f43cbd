#include "simulator/SimulatedDevice.h"

#include "device/DevicePath.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <utility>

using namespace std::chrono_literals;

namespace simulator {
namespace {
constexpr auto refreshPeriod = 1s;

const QString pathVariable = QStringLiteral("PATH");

// Beside the simulator in a build, among the libraries of its package where that is installed.
QString faultsLibrary()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    const QString built = programs.filePath(QStringLiteral("faults/libzell-faults.so"));
    return QFile::exists(built) ? built
                                : QDir::cleanPath(programs.filePath(
                                      QStringLiteral("../lib/zellqt/preload/libzell-faults.so")));
}

// Null where the card has no fault.
const char *cardVariable(StoreFault fault)
{
    switch (fault) {
    case StoreFault::Full:
        return "ZELL_CARD_FULL";
    case StoreFault::ReadOnly:
        return "ZELL_CARD_READ_ONLY";
    case StoreFault::None:
    case StoreFault::Locked:
        break;
    }
    return nullptr;
}

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
    , trouble({.fault = settings.scenario.store,
               .store = QDir::current().filePath(QStringLiteral("ZellQt4.db")),
               .flag = root.storeFault()})
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
    if (!root.create(settings.scenario.networks, problem, settings.scenario.scanHangs))
        return false;
    if (!firmware.listen()) {
        *problem = QStringLiteral("no port for the firmware server: ") + firmware.errorString();
        return false;
    }
    if (sensor && !sensor->start()) {
        *problem = QStringLiteral("cannot make the serial device ") + root.serialDevice();
        return false;
    }
    trouble.start();
    clock.start();
    refresh();
    refreshTimer.start(refreshPeriod);
    return true;
}

QMap<QString, QString> SimulatedDevice::variables() const
{
    const Scenario &scenario = settings.scenario;
    // Where the system has a proxy, it must not be asked for the firmware server on loopback.
    QString noProxy = qEnvironmentVariable("no_proxy");
    noProxy += (noProxy.isEmpty() ? QString() : QStringLiteral(",")) + QStringLiteral("127.0.0.1");
    QMap<QString, QString> values{{QStringLiteral("ZELL_DEVICE_ROOT"), root.path()},
                                  {QStringLiteral("ZELL_FIRMWARE_URL"), firmware.url()},
                                  {QStringLiteral("no_proxy"), noProxy}};
    const bool isSlow = scenario.sensorDelay > 0;
    if (isSlow) {
        values[QStringLiteral("ZELL_SLOW_FILE")] = root.climateFile();
        values[QStringLiteral("ZELL_SLOW_MS")] = QString::number(scenario.sensorDelay);
    }
    const char *const card = cardVariable(scenario.store);
    if (card) {
        values[QStringLiteral("ZELL_CARD")] = QDir::currentPath();
        values[QLatin1String(card)] = root.storeFault();
    }
    // The faults that the files themselves cannot have.
    if (isSlow || card)
        values[QStringLiteral("LD_PRELOAD")] = faultsLibrary();
    return values;
}

QProcessEnvironment SimulatedDevice::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QMap<QString, QString> values = variables();
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        environment.insert(value.key(), value.value());
    environment.insert(pathVariable,
                       root.programFolder() + QLatin1Char(':') + environment.value(pathVariable));
    return environment;
}

QString SimulatedDevice::environmentLines() const
{
    const QMap<QString, QString> values = variables();
    QString lines;
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        lines += QStringLiteral("export %1=%2\n").arg(value.key(), shellQuoted(value.value()));
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
