#include "simulator/ParticleSensor.h"

#include "simulator/DeviceRoot.h"

#include <QFile>
#include <algorithm>
#include <utility>

namespace simulator {

ParticleSensor::ParticleSensor(const Scenario &scenario, Settings sensorSettings,
                               std::function<double()> particlesNow, QObject *parent)
    : QObject(parent)
    , settings(std::move(sensorSettings))
    , line(settings.serialDevice)
    , faults(scenario.frames)
    , particles(std::move(particlesNow))
    , random(settings.seed)
    , framesUntilUnplug(scenario.framesUntilUnplug)
{
    frameTimer.setTimerType(Qt::PreciseTimer);
    frameTimer.setInterval(settings.framePeriod);
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
    if (!QFile::exists(settings.supplySwitch))
        replaceFile(settings.supplySwitch, "0");
    readSupplySwitch();
}

void ParticleSensor::readSupplySwitch()
{
    // A file that was replaced is no longer watched.
    if (switchWatcher.files().isEmpty())
        switchWatcher.addPath(settings.supplySwitch);

    QFile file(settings.supplySwitch);
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
        QTimer::singleShot(settings.burstPause, this, &ParticleSensor::pullOut);
}

void ParticleSensor::sendBursts(QList<QByteArray> bursts)
{
    line.send(bursts.takeFirst());
    if (!bursts.isEmpty())
        QTimer::singleShot(settings.burstPause, this, [this, bursts] {
            if (frameTimer.isActive())
                sendBursts(bursts);
        });
}

void ParticleSensor::pullOut()
{
    line.pullOut();
    framesSincePlugged = 0;
    QTimer::singleShot(settings.unpluggedFor, this, [this] { line.plugIn(); });
}

} // namespace simulator
