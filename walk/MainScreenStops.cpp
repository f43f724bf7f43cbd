#include "walk/Stops.h"

#include <QAbstractAnimation>

namespace {
// Free ground on the reading pages, left of the tiles and off the number.
constexpr int freeLeft = 40;
constexpr int freeRight = 130;
constexpr QPoint number(331, 240);
constexpr QPoint tabOfSevenDays(680, 40);
constexpr QPoint dotOnTheChart(446, 300);
constexpr int instantOfTheScan = 2300;

void toNextPage(Walk &walk)
{
    walk.swipe(freeRight, freeLeft);
}

void toPreviousPage(Walk &walk)
{
    walk.swipe(freeLeft, freeRight);
}

void holdScan(Walk &walk)
{
    walk.tapAt(number);
    const QWidget *page = walk.find(QStringLiteral("frame_scan"))->parentWidget();
    for (auto *animation : page->findChildren<QAbstractAnimation *>()) {
        if (animation->group() || animation->state() != QAbstractAnimation::Running)
            continue;
        animation->pause();
        animation->setCurrentTime(instantOfTheScan);
    }
}

Step reading(double celsius, double percent)
{
    return [=](Walk &walk) { walk.setReadings(celsius, percent); };
}

Step particles(int value)
{
    return [value](Walk &walk) { walk.setParticles(value); };
}
} // namespace

std::vector<Stop> mainScreenStops()
{
    return {
        {"main-temperature", {}},
        {"main-pm25", {toPreviousPage}},
        {"history-pm25", {tapping("button_history")}},
        {"main-scanning", {tapping("button_back"), holdScan}},
        {"main-humidity", {toNextPage, toNextPage}},
        {"main-hundred", {reading(23.456, 100), particles(1023)}},
        {"history-humidity", {tapping("button_history")}},
        {"main-negative",
         {tapping("button_back"), toPreviousPage, particles(567), reading(-5.5, 99.9)}},
        {"history-24h", {tapping("button_history")}},
        {"history-7days", {tappingAt(tabOfSevenDays)}},
        {"history-7days-touch", {tapping("radio_day2"), pressingAt(dotOnTheChart)}},
        {"history-7days-other", {&Walk::release, tapping("radio_day4")}},
        {"main-no-reading", {tapping("button_back"), &Walk::breakSensor}},
        {"screen-off", {tapping("button_power")}},
        // The first touch only wakes.
        {"main-beyond-the-last",
         {tappingAt(number), reading(23.456, 40.2), tapping("frame_humidity")}},
    };
}
