#include "benchmarks/support/Row.h"
#include "benchmarks/support/Screen.h"

#include <QListView>
#include <QScrollArea>
#include <QScrollBar>
#include <QStringList>
#include <utility>

namespace {
// A finger that draws what lies in @p area up and down about the middle.
void drag(Row &row, Screen &screen, const QAbstractScrollArea *area)
{
    QScrollBar *bar = area->verticalScrollBar();
    bar->setValue(bar->maximum() / 2);
    constexpr QPoint start(427, 300);
    screen.press(start);
    int move = 0;
    row.turns([&] {
        screen.move(start + QPoint(0, ++move / 8 % 2 ? 24 + move % 8 : -24 - move % 8));
        screen.step();
    });
}

void menu(Row &row)
{
    Screen screen;
    screen.open(QStringLiteral("button_option"));
    drag(row, screen, Screen::visible<QScrollArea>());
}

void wifiList(Row &row, int networks)
{
    Screen screen;
    screen.setNetworks(QStringList(networks, QStringLiteral("Network")));
    screen.open(QStringLiteral("button_option"));
    screen.open(QStringLiteral("option_setWifi"));
    drag(row, screen, Screen::visible<QListView>());
}

// The wheel runs on after a finger that left it moving, to and fro.
void wheelFrame(Row &row)
{
    QPoint from(230, 330);
    QPoint to(230, 230);
    Screen screen;
    for (const auto *button : {"button_option", "option_setTime", "button_dateTime"})
        screen.open(QLatin1String(button));
    row.includeQuick();
    row.turns([&] { screen.step(); },
              [&] {
                  if (screen.isBusy())
                      return;
                  screen.press(from);
                  for (int step = 1; step <= 4; ++step)
                      screen.move(from + (to - from) * step / 4);
                  screen.lift(to);
                  std::swap(from, to);
              });
}

const Rows rows({
    {.name = "settings page slides in, first visit",
     .measure = [](Row &row) { firstSlideIn(row, QStringLiteral("button_option")); },
     .samples = 75},
    {.name = "settings page slides in, later",
     .measure = [](Row &row) { laterSlideIn(row, QStringLiteral("button_option")); }},
    {.name = "settings menu under a finger", .measure = menu},
    {.name = "Wi-Fi list of 8 under a finger", .measure = [](Row &row) { wifiList(row, 8); }},
    {.name = "Wi-Fi list of 500 under a finger", .measure = [](Row &row) { wifiList(row, 500); }},
    {.name = "date wheel frame", .measure = wheelFrame},
});
} // namespace
