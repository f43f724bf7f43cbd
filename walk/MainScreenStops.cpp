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
    walk.settle();
}
} // namespace

std::vector<Stop> mainScreenStops()
{
    return {
        {"main-temperature", [](Walk &walk) { walk.settle(); }},
        {"main-pm25", toPreviousPage},
        {"main-scanning", holdScan},
        {"main-humidity",
         [](Walk &walk) {
             toNextPage(walk);
             toNextPage(walk);
         }},
        {"main-negative",
         [](Walk &walk) {
             toPreviousPage(walk);
             walk.setReadings(-5.5, 99.9);
             walk.settle();
         }},
        {"history-24h", tapping({"button_history"})},
        {"history-7days",
         [](Walk &walk) {
             walk.tapAt(tabOfSevenDays);
             walk.settle();
         }},
        {"history-7days-touch",
         [](Walk &walk) {
             walk.tap(QStringLiteral("radio_day2"));
             walk.pressAt(dotOnTheChart);
             walk.settle();
         }},
        {"history-7days-other",
         [](Walk &walk) {
             walk.release();
             tapping({"radio_day4"})(walk);
         }},
        {"main-no-reading",
         [](Walk &walk) {
             walk.tap(QStringLiteral("button_back"));
             walk.breakSensor();
             walk.settle();
         }},
    };
}
