#include "settings/TimeSpinners.h"

#include "settings/QmlApplicationViewer.h"

namespace {
constexpr int noon = 12;
}

void loadSpinner(QmlApplicationViewer *host, const QString &name, int row)
{
    host->setOrientation(QmlApplicationViewer::ScreenOrientation::Automatic);
    host->setMainQmlFile(QStringLiteral("qrc:/resource/qml/spinner_%1.qml").arg(name), row);
    host->showExpanded();
}

void TimeSpinners::load(bool use24Hour, const QTime &start) const
{
    if (use24Hour) {
        loadSpinner(hour, QStringLiteral("hour"), start.hour());
        amp->hide();
    } else {
        loadSpinner(hour, QStringLiteral("hour12"), start.hour() % noon);
        loadSpinner(amp, QStringLiteral("amp"), start.hour() / noon);
    }
    loadSpinner(minute, QStringLiteral("minute"), start.minute());
}

void TimeSpinners::hide() const
{
    for (QmlApplicationViewer *host : {hour, minute, amp})
        host->hide();
}
