#include "acquisition/GetData.h"
#include "benchmarks/support/Row.h"
#include "benchmarks/support/Screen.h"
#include "simulator/SysfsText.h"
#include "testkit/Environment.h"

#include <algorithm>
#include <utility>

namespace {
constexpr QPoint freeLeft(40, 330);
constexpr QPoint freeRight(130, 330);
constexpr QPoint number(331, 240);

// Slides to and fro between two pages.
class Slider
{
public:
    void touch()
    {
        screen.press(from);
        screen.move((from + to) / 2);
        screen.move(to);
    }

    void lift()
    {
        screen.lift(to);
        std::swap(from, to);
    }

    void begin()
    {
        touch();
        lift();
    }

    Screen screen;

private:
    QPoint from = freeRight;
    QPoint to = freeLeft;
};

// But for the first two, which are a row of their own.
void slideFrame(Row &row)
{
    Slider slider;
    row.turns([&] { slider.screen.step(); },
              [&] {
                  if (slider.screen.isBusy())
                      return;
                  slider.begin();
                  Row::runLoop([&] { slider.screen.step(); });
              });
}

// From lifting the finger; the dearer of the two.
void firstFrames(Row &row)
{
    Slider slider;
    while (row.isOpen()) {
        slider.screen.finish();
        Row::runLoop([&] { slider.touch(); });
        const Row::Seconds first = row.turn([&] { slider.lift(); });
        row.add(std::max(first, row.turn([&] { slider.screen.step(); })));
    }
}

void scanFrame(Row &row)
{
    Screen screen;
    screen.swipe(freeLeft.x(), freeRight.x());
    screen.finish();
    screen.click(number);
    row.turns([&screen] { screen.step(); });
}

// On the page in view and the tile of the other quantity, from the tick of the schedulers.
void newReading(Row &row)
{
    const Screen screen;
    int reading = 0;
    const auto read = [] {
        const QList<GetData *> schedulers = GetData::objects();
        for (GetData *scheduler : schedulers)
            QMetaObject::invokeMethod(scheduler, "refresh_allData");
    };
    row.turns(read, [&reading] {
        const int other = ++reading % 2;
        const auto text = simulator::climateText(23.456 + other, 40.2 + other);
        if (!simulator::replaceFile(Environment::device().climateFile(), text))
            qFatal("no sensor");
    });
}

const Rows rows({
    {.name = "slide frame", .measure = slideFrame},
    {.name = "slide, first two frames", .measure = firstFrames, .samples = 40},
    {.name = "scan frame", .measure = scanFrame},
    {.name = "new reading", .measure = newReading},
});
} // namespace
