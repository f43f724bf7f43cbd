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

void freeze(Walk &walk)
{
    walk.setReadings(-5.5, 99.9);
}
} // namespace

std::vector<Stop> mainScreenStops()
{
    return {
        {"main-temperature", {}},
        {"main-pm25", {toPreviousPage}},
        {"main-scanning", {holdScan}},
        {"main-humidity", {toNextPage, toNextPage}},
        {"main-negative", {toPreviousPage, freeze}},
        {"history-24h", {tapping("button_history")}},
        {"history-7days", {tappingAt(tabOfSevenDays)}},
        {"history-7days-touch", {tapping("radio_day2"), pressingAt(dotOnTheChart)}},
        {"history-7days-other", {&Walk::release, tapping("radio_day4")}},
        {"main-no-reading", {tapping("button_back"), &Walk::breakSensor}},
    };
}
