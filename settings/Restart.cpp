#include "settings/Restart.h"

#include "device/Command.h"
#include "device/DevicePath.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

void restartProgram(std::chrono::milliseconds limit)
{
    QList<QPointer<QWidget>> windows;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            windows.append(window);
    }
    QApplication::closeAllWindows();
    const QString script = shellQuoted(devicePath(QStringLiteral("/bin/restartZellQt.sh")));
    // A script that hangs is left running: ended halfway it might have stopped this program already
    // and not started it again.
    if (runCommand(script, limit, AtLimit::LeaveRunning) == CommandEnd::Succeeded)
        return;

    // Shown before the event loop turns, they also keep it from ending with its last window.
    for (const QPointer<QWidget> &window : windows) {
        if (window)
            window->show();
    }
}
