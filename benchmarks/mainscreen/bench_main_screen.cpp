#include "benchmarks/support/Median.h"
#include "benchmarks/support/Screen.h"
#include "benchmarks/support/Yardstick.h"
#include "mainscreen/BaseScene.h"
#include "mainscreen/MainView.h"
#include "shell/MainWindow.h"

#include <QApplication>
#include <QGraphicsView>
#include <QProcess>
#include <chrono>
#include <optional>
#include <vector>

namespace {
using Clock = std::chrono::steady_clock;

// Nothing where the program has not shown its picture.
std::optional<double> millisecondsOf(const QStringList &arguments)
{
    const auto start = Clock::now();
    QProcess process;
    process.start(QStringLiteral(FIRST_PICTURE), arguments);
    const bool ended = process.waitForFinished();
    const std::chrono::duration<double, std::milli> time = Clock::now() - start;
    if (!ended || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return std::nullopt;
    return time.count();
}

// Both from the start of the process to the first picture, in turn.
void firstPicture(benchmark::State &state)
{
    constexpr double limit = 3;
    const QStringList ofProduct{QStringLiteral("product")};
    std::vector<double> bare;
    std::vector<double> product;
    millisecondsOf(ofProduct);
    for (auto _ : state) {
        const std::optional<double> plain = millisecondsOf({});
        const std::optional<double> whole = millisecondsOf(ofProduct);
        if (!plain || !whole) {
            Yardstick::fail(state, "no first picture");
            return;
        }
        bare.push_back(*plain);
        product.push_back(*whole);
        state.SetIterationTime(*whole / 1000);
    }
    state.counters["bare_ms"] = medianOf(bare);
    state.counters["product_ms"] = medianOf(product);
    Yardstick::check(state, medianOf(product) / medianOf(bare), limit);
}

// The main window on the screen, with its view.
struct Screen
{
    Screen()
    {
        showOnScreen(&window);
        view = window.findChild<MainView *>();
    }
    MainWindow window;
    MainView *view = nullptr;
};

// One step of a slide between two pages: the positions and everything painted for them.
void slideFrame(benchmark::State &state)
{
    constexpr double limit = 10;
    const Screen screen;
    int frame = -1000;
    const auto step = [&] {
        frame = frame <= -2000 ? -1000 : frame - 32;
        QMetaObject::invokeMethod(screen.view, "change_page", Q_ARG(int, frame));
        screen.view->viewport()->repaint();
    };
    step();
    QApplication::processEvents();
    Yardstick::measure(state, limit, step, [] { QApplication::processEvents(); });
}

// One step of the history page on its way in.
void historyFrame(benchmark::State &state)
{
    constexpr double limit = 30;
    const Screen screen;
    auto *history = screen.view->overlay()->findChild<QWidget *>(QStringLiteral("page_history"));
    history->move(854, 0);
    history->show();
    history->raise();
    const auto step = [&] {
        history->move(history->x() <= 0 ? 854 : history->x() - 35, 0);
        QApplication::sendPostedEvents();
        screen.view->viewport()->repaint();
    };
    step();
    QApplication::processEvents();
    Yardstick::measure(state, limit, step, [] { QApplication::processEvents(); });
}
} // namespace

BENCHMARK(firstPicture)->UseManualTime()->Iterations(15)->Unit(benchmark::kMillisecond);
BENCHMARK(slideFrame)->UseManualTime()->Iterations(300)->Unit(benchmark::kMicrosecond);
BENCHMARK(historyFrame)->UseManualTime()->Iterations(300)->Unit(benchmark::kMicrosecond);
