#include "settings/TimeSpinners.h"

#include "pages/Page.h"
#include "settings/QmlApplicationViewer.h"

#include <QCoreApplication>
#include <QTimer>
#include <utility>

namespace {
constexpr int noon = 12;

QString spinnerFile(const QString &name)
{
    return QStringLiteral("qrc:/resource/qml/spinner_%1.qml").arg(name);
}
} // namespace

void readySpinnersSoon()
{
    static bool ready = false;
    if (std::exchange(ready, true))
        return;
    QTimer::singleShot(Page::pictureTime, qApp, [] {
        for (const auto *name : {"date", "hour", "minute"})
            QmlApplicationViewer().setMainQmlFile(spinnerFile(QLatin1String(name)));
    });
}

void loadSpinner(QmlApplicationViewer *host, const QString &name, int row)
{
    host->setOrientation(QmlApplicationViewer::ScreenOrientation::Automatic);
    host->setMainQmlFile(spinnerFile(name), row);
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
