#include "benchmarks/support/Yardstick.h"
#include "settings/OptionPage.h"
#include "testkit/Touch.h"

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QWindow>
#include <malloc.h>

namespace {
/// A visit to a page by taps from the menu, the last of which opens it, and the way back. Where
/// that leads back to the menu the pages in between are visited anew every time.
struct Way
{
    const char *name;
    std::vector<const char *> taps;
    const char *back = "button_back";
    /// Whether the last tap shows the page without waiting for something else.
    bool atOnce = true;
};

constexpr double kibibytesPerVisit = 128;

const Way ways[] = {
    {"SetWifiPage", {"option_setWifi"}},
    {"adjustLight", {"option_adjustLight"}},
    {"TimeZonePage", {"option_setTime", "button_timeZone"}},
    {"setLanguagePage", {"option_frame_language"}},
    {"Factory_Reset", {"option_resetFactory"}},
    {"FactoryReset_Confirm", {"option_resetFactory", "button_confirm"}, "button_cancel"},
    {"connectApp", {"option_connectApp"}},
    {"tryConnectApp", {"option_connectApp", "button_connectApp"}},
    {"setLocation", {"option_setLocation"}},
    {"searchLocation", {"option_setLocation", "button_search"}},
    {"locationResult", {"option_setLocation", "button_search", "button_enter"}},
    {"updateFirmware", {"option_updateFirmware"}},
    {"retryFirmware",
     {"option_updateFirmware", "button_checkUpdate", "button_update"},
     "button_back",
     false},
};

/// Opens the page at the end of a way again and again.
class Visitor
{
public:
    explicit Visitor(const Way &taken)
        : way(taken)
    {
        qputenv("ZELL_FIRMWARE_URL", "http://127.0.0.1:1/refused.pkg");
        menu.setGeometry(0, 0, 854, 480);
        menu.show();
        while (!menu.windowHandle()->isExposed())
            QApplication::processEvents();
    }

    /// All taps up to the last one, from where the last visit has led back to.
    void approach()
    {
        while (reached + 1 < way.taps.size())
            tapShown(way.taps[reached++]);
    }

    /// From the last tap to the picture.
    void open() { tapShown(way.taps.back()); }

    void leave()
    {
        // The language page's own button would restart the program, too.
        QWidget *page = menu.childAt(menu.rect().center());
        while (page->metaObject()->indexOfSignal("signal_backDefaultPage()") < 0)
            page = page->parentWidget();
        if (page->objectName() == "setLanguagePage")
            QMetaObject::invokeMethod(page, "signal_backDefaultPage");
        else
            tapShown(way.back);
        settle();
        if (menu.is_allowed_slide())
            reached = 0;
    }

private:
    static void settle()
    {
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void tapShown(const char *name)
    {
        QWidget *shown = nullptr;
        while ((shown = visibleChild(&menu, name)) == nullptr)
            settle();
        if (menu.is_allowed_slide())
            menu.findChild<QScrollArea *>("scrollArea")->verticalScrollBar()->setValue(shown->y());
        tap(shown);
        QApplication::processEvents();
    }

    Way way;
    std::size_t reached = 0;
    OptionPage menu;
};

void openPage(benchmark::State &state, const Way &way)
{
    // 16 ms, a period of the screen, where a frame is copied in 55 us.
    constexpr double limit = 290;
    Visitor visitor(way);
    visitor.approach();
    visitor.open();
    Yardstick::measure(
        state, limit, [&] { visitor.open(); },
        [&] {
            visitor.leave();
            visitor.approach();
        });
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
        visitor.approach();
        visitor.open();
        visitor.leave();
        const double before = kibibytesInUse();
        for (int visit = 0; visit < visits; ++visit) {
            visitor.approach();
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
        const std::string name = way.name;
        if (way.atOnce) {
            benchmark::RegisterBenchmark(("open/" + name).c_str(), openPage, way)
                ->UseManualTime()
                ->Iterations(40)
                ->Unit(benchmark::kMillisecond);
        }
        benchmark::RegisterBenchmark(("memory/" + name).c_str(), memoryOfAVisit, way)
            ->UseManualTime()
            ->Iterations(1);
    }
    return true;
}();
} // namespace
