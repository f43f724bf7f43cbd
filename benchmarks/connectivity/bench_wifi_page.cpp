#include "benchmarks/support/Screen.h"
#include "benchmarks/support/Yardstick.h"
#include "connectivity/SetWifiPage.h"
#include "testkit/Environment.h"

#include <QApplication>
#include <QListView>
#include <QScrollBar>

namespace {
struct Screen
{
    Screen()
    {
        if (!Environment::device().setNetworks(QStringList(500, QStringLiteral("Network"))))
            qFatal("no scanner");
        showOnScreen(&window);
    }

    SetWifiPage *open()
    {
        page = std::make_unique<SetWifiPage>(&window);
        page->show();
        repaint();
        return page.get();
    }

    QWidget window;
    std::unique_ptr<SetWifiPage> page;
};

// From the tap on the tile to the list on the screen, a scan that takes no time included. 16 ms are
// some 500 copies where a copy takes 32 us.
void openPage(benchmark::State &state)
{
    Screen screen;
    Yardstick::measure(
        state, 500, [&screen] { screen.open(); }, [&screen] { screen.page.reset(); });
}

// One frame of a list that glides by at 20 px a frame: far from the 16 ms between two frames.
void scrollFrame(benchmark::State &state)
{
    Screen screen;
    QScrollBar *bar = screen.open()->findChild<QListView *>()->verticalScrollBar();
    Yardstick::measure(state, 20, [bar] {
        bar->setValue((bar->value() + 20) % bar->maximum());
        repaint();
    });
}
} // namespace

BENCHMARK(openPage)->UseManualTime()->Iterations(50);
BENCHMARK(scrollFrame)->UseManualTime()->Iterations(500);
