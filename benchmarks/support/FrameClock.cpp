#include "benchmarks/support/FrameClock.h"

#include <QTimeLine>
#include <QWidget>
#include <algorithm>

namespace {
constexpr int frameTime = 16;
}

FrameClock::FrameClock(QWidget *window)
    : timeLines(window->findChildren<QTimeLine *>())
{
    install();
}

FrameClock::~FrameClock()
{
    uninstall();
}

void FrameClock::start()
{
    milliseconds = 0;
    QAnimationDriver::start();
}

void FrameClock::step()
{
    milliseconds += frameTime;
    if (isRunning())
        advance();
    for (QTimeLine *line : std::as_const(timeLines)) {
        if (line->state() == QTimeLine::NotRunning)
            continue;
        line->setPaused(false);
        line->setCurrentTime(line->currentTime() + frameTime);
        line->setPaused(line->state() == QTimeLine::Running);
    }
}

bool FrameClock::isBusy() const
{
    return isRunning() || std::ranges::any_of(timeLines, [](const QTimeLine *line) {
               return line->state() != QTimeLine::NotRunning;
           });
}
