#include "benchmarks/support/Yardstick.h"
#include "settings/OptionPage.h"
#include "settings/QmlApplicationViewer.h"
#include "testkit/Touch.h"

#include <QApplication>
#include <QQmlEngine>
#include <QScreen>
#include <malloc.h>

namespace {
// From tap to picture in 16 ms, a period of the screen: some 290 copies of a frame of 55 us each on
// the machine that the limits were set on.
constexpr double onePeriod = 290;
constexpr int rounds = 50;
constexpr double formBudget = 128 * 1024;
constexpr double spinnerBudget = 512 * 1024;

/// Taps its way through the settings area, with the newest page on top.
class Visitor
{
public:
    Visitor()
    {
        menu.show();
        settle();
    }

    void tapNewest(const char *name)
    {
        QWidget *newest = nullptr;
        for (QWidget *widget : menu.findChildren<QWidget *>(name))
            newest = widget->isVisible() ? widget : newest;
        tap(newest);
    }

    /// Lets everything that the last tap has set off happen, up to the finished picture.
    void settle()
    {
        do {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        } while (!wheelsAreOnTheScreen());
    }

    void visit(std::initializer_list<const char *> taps)
    {
        for (const char *name : taps) {
            tapNewest(name);
            settle();
        }
    }

    /// Lets the page that leads to wheels load what they share, which is done once and belongs to
    /// no visit.
    void awaitSpinners()
    {
        while (qApp->findChild<QQmlEngine *>() == nullptr)
            settle();
        settle();
    }

private:
    /// Whether the current row of every visible wheel has reached the screen.
    bool wheelsAreOnTheScreen()
    {
        for (const auto *wheel : menu.findChildren<QmlApplicationViewer *>()) {
            if (wheel->isVisible() && !rowIsOnTheScreen(*wheel))
                return false;
        }
        return true;
    }

    bool rowIsOnTheScreen(const QWidget &wheel)
    {
        const QRect row(wheel.mapTo(&menu, QPoint()).x(), 270, wheel.width(), 20);
        const QImage picture =
            menu.screen()
                ->grabWindow(menu.winId(), row.x(), row.y(), row.width(), row.height())
                .toImage();
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, 10) == QColor("#00e5ff"))
                return true;
        }
        return false;
    }

    OptionPage menu;
};

double bytesInUse()
{
    const struct mallinfo2 heap = mallinfo2();
    return double(heap.uordblks + heap.hblkhd);
}

/// The first page with wheels in the life of the program, if nothing has run before.
void opensFirst(benchmark::State &state)
{
    Visitor visitor;
    visitor.visit({"option_setTime"});
    visitor.awaitSpinners();
    Yardstick::measure(state, onePeriod, [&] { visitor.visit({"button_dateTime"}); });
}

/// From the tap to the finished picture on the screen.
void opens(benchmark::State &state, std::initializer_list<const char *> before,
           const char *measured)
{
    Visitor visitor;
    visitor.visit(before);
    visitor.visit({measured, "button_back"});
    bool open = false;
    Yardstick::measure(
        state, onePeriod, [&] { visitor.visit({measured}); },
        [&] {
            if (std::exchange(open, true))
                visitor.visit({"button_back"});
        });
}

/// What each further visit adds to the memory in use.
void leavesBehind(benchmark::State &state, double budget,
                  std::initializer_list<const char *> before,
                  std::initializer_list<const char *> visit)
{
    Visitor visitor;
    visitor.visit(before);
    for (int warm = 0; warm < 3; ++warm)
        visitor.visit(visit);
    visitor.awaitSpinners();
    double added = 0;
    for (auto _ : state) {
        const double start = bytesInUse();
        for (int round = 0; round < rounds; ++round)
            visitor.visit(visit);
        added = (bytesInUse() - start) / rounds;
        state.SetIterationTime(1);
    }
    Yardstick::check(state, added, budget);
}

#define ZELL_OPENS(name, ...)                                                                      \
    BENCHMARK_CAPTURE(opens, name, __VA_ARGS__)->UseManualTime()->Iterations(rounds)
#define ZELL_LEAVES(name, ...)                                                                     \
    BENCHMARK_CAPTURE(leavesBehind, name, __VA_ARGS__)->UseManualTime()->Iterations(1)

using Taps = std::initializer_list<const char *>;

BENCHMARK(opensFirst)->UseManualTime()->Iterations(1);
ZELL_OPENS(SetTimePage, Taps{}, "option_setTime");
ZELL_OPENS(DateTimePage, Taps{"option_setTime"}, "button_dateTime");
ZELL_OPENS(DateTimePage_12h, (Taps{"option_setTime", "checkBox_24Hours"}), "button_dateTime");
ZELL_OPENS(nightModePage, Taps{}, "option_frame_nightPattern");
ZELL_OPENS(timePage, Taps{"option_frame_nightPattern"}, "button_startTime");

ZELL_LEAVES(SetTimePage, formBudget, Taps{}, (Taps{"option_setTime", "button_back"}));
ZELL_LEAVES(nightModePage, formBudget, Taps{}, (Taps{"option_frame_nightPattern", "button_back"}));
ZELL_LEAVES(DateTimePage, spinnerBudget, Taps{"option_setTime"},
            (Taps{"button_dateTime", "button_back"}));
ZELL_LEAVES(timePage, spinnerBudget, Taps{"option_frame_nightPattern"},
            (Taps{"button_startTime", "button_back"}));
} // namespace
