#include "simulator/ParticleSensor.h"

#include "simulator/DeviceRoot.h"

#include <QFile>
#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace simulator {
namespace {
constexpr auto framePeriod = 1s;
// Long enough for the reader to see two bursts, short against the frame period.
constexpr auto burstPause = 200ms;
// Within the ten seconds of a sampling window, so that the return can be seen as well.
constexpr auto unpluggedFor = 3s;
} // namespace

ParticleSensor::ParticleSensor(const Scenario &scenario, const QString &serialDevice,
                               const QString &supplySwitch, quint32 seed,
                               std::function<double()> particlesNow, QObject *parent)
    : QObject(parent)
    , line(serialDevice)
    , switchPath(supplySwitch)
    , faults(scenario.frames)
    , particles(std::move(particlesNow))
    , random(seed)
    , framesUntilUnplug(scenario.framesUntilUnplug)
{
    frameTimer.setTimerType(Qt::PreciseTimer);
    frameTimer.setInterval(framePeriod);
    connect(&frameTimer, &QTimer::timeout, this, &ParticleSensor::sendFrame);
    connect(&switchWatcher, &QFileSystemWatcher::fileChanged, this,
            &ParticleSensor::readSupplySwitch);
}

bool ParticleSensor::start()
{
    readSupplySwitch();
    return line.plugIn();
}

void ParticleSensor::keepSupplySwitch()
{
    if (!QFile::exists(switchPath))
        replaceFile(switchPath, "0");
    readSupplySwitch();
}

void ParticleSensor::readSupplySwitch()
{
    // A file that was replaced is no longer watched.
    if (switchWatcher.files().isEmpty())
        switchWatcher.addPath(switchPath);

    QFile file(switchPath);
    const bool on = file.open(QIODevice::ReadOnly) && file.read(1) == "1";
    if (on && !frameTimer.isActive())
        frameTimer.start();
    else if (!on)
        frameTimer.stop();
}

void ParticleSensor::sendFrame()
{
    if (!line.isOpened())
        return;
    const FrameFault fault = faults.at(framesSent++ % faults.size());
    sendBursts(sensorBursts(fault, quint32(std::max(0, qRound(particles()))), random));
    if (++framesSincePlugged == framesUntilUnplug)
        QTimer::singleShot(burstPause, this, &ParticleSensor::pullOut);
}

void ParticleSensor::sendBursts(QList<QByteArray> bursts)
{
    line.send(bursts.takeFirst());
    if (!bursts.isEmpty())
        QTimer::singleShot(burstPause, this, [this, bursts] {
            if (frameTimer.isActive())
                sendBursts(bursts);
        });
}

void ParticleSensor::pullOut()
{
    line.pullOut();
    framesSincePlugged = 0;
    QTimer::singleShot(unpluggedFor, this, [this] { line.plugIn(); });
}

} // namespace simulator
