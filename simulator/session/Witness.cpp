#include "simulator/session/Witness.h"

#include <QApplication>
#include <QLabel>
#include <algorithm>
#include <chrono>

namespace {
using namespace std::chrono_literals;

constexpr auto beatTime = 10ms;
// The start-up is none of the program's standstills.
constexpr auto settlingTime = 2s;
constexpr qint64 worthTelling = 50;
} // namespace

Witness::Witness(QObject *parent)
    : QObject(parent)
{
    beat.setTimerType(Qt::PreciseTimer);
    beat.callOnTimeout(this, &Witness::look);
    QTimer::singleShot(settlingTime, this, [this] {
        sinceBeat.start();
        beat.start(beatTime);
    });
}

Witness::~Witness()
{
    qInfo("longest standstill: %lld ms", longest);
}

void Witness::look()
{
    const qint64 standstill = sinceBeat.restart() - beatTime / 1ms;
    longest = std::max(longest, standstill);
    if (standstill >= worthTelling)
        qInfo("standstill: %lld ms", standstill);
    for (const QString &name : qEnvironmentVariable("ZELL_SESSION_WATCH").split(QLatin1Char(' '))) {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            const auto *label = window->findChild<QLabel *>(name);
            if (!label || texts.value(name) == label->text())
                continue;
            texts[name] = label->text();
            qInfo("%s: %s", qPrintable(name), qPrintable(label->text()));
        }
    }
}
