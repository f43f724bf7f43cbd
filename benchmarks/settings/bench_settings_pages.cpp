#include "benchmarks/support/Yardstick.h"
#include "settings/OptionPage.h"
#include "tests/support/Touch.h"

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QWindow>
#include <malloc.h>

namespace {
/// A page, by the tile that leads to it and, for a page behind a page, the button on the first one.
struct Way
{
    const char *tile;
    const char *button;
};

constexpr double kibibytesPerVisit = 128;

constexpr Way ways[] = {
    {"option_adjustLight", ""},
    {"option_setTime", "button_timeZone"},
    {"option_frame_language", ""},
    {"option_resetFactory", ""},
    {"option_resetFactory", "button_confirm"},
};

/// Opens the page at the end of a way again and again.
class Visitor
{
public:
    explicit Visitor(const Way &taken)
        : way(taken)
    {
        menu.setGeometry(0, 0, 854, 480);
        menu.show();
        while (!menu.windowHandle()->isExposed())
            QApplication::processEvents();
        auto *tile = menu.findChild<QWidget *>(way.tile);
        menu.findChild<QScrollArea *>("scrollArea")->verticalScrollBar()->setValue(tile->y());
        if (*way.button == '\0')
            return;
        tap(tile);
        QApplication::processEvents();
    }

    /// From the tap to the picture.
    void open()
    {
        tap(visibleChild(&menu, *way.button == '\0' ? way.tile : way.button));
        QApplication::processEvents();
    }

    /// Back as the page's own button would, without what else that may do.
    void leave()
    {
        constexpr const char *back = "signal_backDefaultPage()";
        QWidget *page = menu.childAt(menu.rect().center());
        while (page->metaObject()->indexOfSignal(back) < 0)
            page = page->parentWidget();
        QMetaObject::invokeMethod(page, "signal_backDefaultPage");
        QApplication::processEvents();
    }

private:
    Way way;
    OptionPage menu;
};

void openPage(benchmark::State &state, const Way &way)
{
    // 16 ms, a period of the screen, where a frame is copied in 55 us.
    constexpr double limit = 290;
    Visitor visitor(way);
    visitor.open();
    Yardstick::measure(
        state, limit, [&] { visitor.open(); }, [&] { visitor.leave(); });
}

double kibibytesInUse()
{
    const struct mallinfo2 memory = mallinfo2();
    return double(memory.uordblks + memory.hblkhd) / 1024;
}

void memoryOfAVisit(benchmark::State &state, const Way &way)
{
    constexpr int visits = 50;
    double used = 0;
    for (auto _ : state) {
        Visitor visitor(way);
        // What is built once and kept belongs to no visit.
        visitor.open();
        visitor.leave();
        const double before = kibibytesInUse();
        for (int visit = 0; visit < visits; ++visit) {
            visitor.open();
            visitor.leave();
        }
        used = (kibibytesInUse() - before) / visits;
        state.SetIterationTime(1e-3);
    }
    Yardstick::check(state, used, kibibytesPerVisit);
}

const bool registered = [] {
    for (const Way &way : ways) {
        const std::string name = std::string(way.tile) + '/' + way.button;
        benchmark::RegisterBenchmark(("open/" + name).c_str(), openPage, way)
            ->UseManualTime()
            ->Iterations(40)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(("memory/" + name).c_str(), memoryOfAVisit, way)
            ->UseManualTime()
            ->Iterations(1);
    }
    return true;
}();
} // namespace
