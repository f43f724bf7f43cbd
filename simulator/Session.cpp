#include "simulator/Session.h"

#include <QDir>
#include <QFile>
#include <QTextStream>
#include <utility>

namespace simulator {
namespace {
constexpr int noDevice = 1;
constexpr int noCommand = 127;

void tell(const QString &text)
{
    QTextStream(stderr) << "zell-simulator: " << text << '\n';
}
} // namespace

Session::Session(const Options &sessionOptions, QObject *parent)
    : QObject(parent)
    , options(sessionOptions)
{
    if (options.root.isEmpty()) {
        temporaryRoot = std::make_unique<QTemporaryDir>(QDir::tempPath() +
                                                        QStringLiteral("/zell-simulator-XXXXXX"));
        options.root = temporaryRoot->path();
    }
    connect(&interrupts, &TerminationSignals::received, this, &Session::onInterrupt);
    connect(&requestWatcher, &QFileSystemWatcher::directoryChanged, this, &Session::onRequest);
    connect(&notifications, &NotifySocket::received, this, &Session::onNotification);
    connect(&patience, &QTimer::timeout, this, &Session::onSilence);
    patience.setSingleShot(true);
    patience.setInterval(options.patience);
}

void Session::start()
{
    if (!startDevice()) {
        emit ended(noDevice);
        return;
    }
    requestWatcher.addPath(device->deviceRoot().requestFolder());
    if (!options.command.isEmpty()) {
        runner = std::make_unique<ProgramRunner>(options.command, environment());
        connect(runner.get(), &ProgramRunner::ended, this, &Session::onCommandEnded);
        startCommand();
        return;
    }
    QTextStream(stdout) << device->environmentLines();
    tell(QStringLiteral("scenario %1, until Ctrl-C").arg(options.device.scenario.name));
}

bool Session::startDevice()
{
    if (temporaryRoot && !temporaryRoot->isValid()) {
        tell(QStringLiteral("no temporary folder: ") + temporaryRoot->errorString());
        return false;
    }
    device = std::make_unique<SimulatedDevice>(options.root, options.device);
    QString problem;
    const bool started = device->start(&problem);
    if (!started)
        tell(problem);
    return started;
}

QProcessEnvironment Session::environment()
{
    QProcessEnvironment environment = device->environment();
    if (options.patience.count() > 0) {
        const std::chrono::microseconds watchdog = options.patience;
        environment.insert("NOTIFY_SOCKET", QString::fromLatin1(notifications.address()));
        environment.insert("WATCHDOG_USEC", QString::number(watchdog.count()));
        // Left by a service manager of this process, it would name another one.
        environment.remove("WATCHDOG_PID");
    }
    return environment;
}

void Session::startCommand()
{
    if (runner->start())
        return;
    tell(QStringLiteral("cannot start \"%1\": %2")
             .arg(options.command.first(), runner->errorString()));
    emit ended(noCommand);
}

void Session::onInterrupt()
{
    if (!runner)
        emit ended(0);
    else if (isEnding)
        runner->kill(); // interrupted a second time: no more patience
    else
        runner->stop();
    isEnding = true;
}

void Session::onRequest()
{
    if (runner && QFile::exists(device->deviceRoot().restartRequest()))
        runner->stop();
    else if (takeRestartRequest())
        tell(QStringLiteral("asked for a restart; start the program again yourself"));
}

void Session::onNotification(const QByteArray &text)
{
    if (text == "READY=1")
        tell(QStringLiteral("the program is ready"));
    patience.start();
}

void Session::onSilence()
{
    tell(QStringLiteral("no beat for %1 s, the program is started again")
             .arg(options.patience.count()));
    isSilent = true;
    runner->kill();
}

void Session::onCommandEnded(int status)
{
    // The program may end by itself before the request is noticed; it counts all the same.
    patience.stop();
    const bool isAsked = takeRestartRequest();
    if (isEnding || !(isAsked || std::exchange(isSilent, false))) {
        emit ended(status);
        return;
    }
    if (isAsked)
        tell(QStringLiteral("the program asked for its restart"));
    startCommand();
}

bool Session::takeRestartRequest()
{
    return QFile::remove(device->deviceRoot().restartRequest());
}

} // namespace simulator
