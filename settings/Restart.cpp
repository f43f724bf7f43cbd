#include "settings/Restart.h"

#include "device/DevicePath.h"

#include <QApplication>
#include <QDebug>
#include <QPointer>
#include <QProcess>
#include <QWidget>
#include <chrono>

namespace {
constexpr std::chrono::milliseconds scriptLimit{5000};

// A script that hangs is left running: ended halfway it might have stopped this program already and
// not started it again.
bool runScript()
{
    auto *script = new QProcess(qApp);
    script->setProcessChannelMode(QProcess::ForwardedChannels);
    script->start(devicePath(QStringLiteral("/bin/restartZellQt.sh")), QStringList());
    script->waitForFinished(int(scriptLimit.count()));
    const bool done = script->state() == QProcess::NotRunning &&
                      script->error() == QProcess::UnknownError &&
                      script->exitStatus() == QProcess::NormalExit && script->exitCode() == 0;
    if (!done)
        qDebug() << "restart script failed:" << script->errorString() << script->exitCode();
    if (script->state() == QProcess::NotRunning)
        delete script;
    return done;
}
} // namespace

void restartProgram()
{
    QList<QPointer<QWidget>> windows;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            windows.append(window);
    }
    QApplication::closeAllWindows();
    if (runScript())
        return;

    // Shown before the event loop turns, they also keep it from ending with its last window.
    for (const QPointer<QWidget> &window : windows) {
        if (window)
            window->show();
    }
}
