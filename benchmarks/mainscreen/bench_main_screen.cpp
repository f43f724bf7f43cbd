#include "benchmarks/support/Yardstick.h"
#include "mainscreen/MainView.h"
#include "shell/MainWindow.h"

#include <QApplication>
#include <QGraphicsView>
#include <QProcess>
#include <QWindow>
#include <algorithm>

namespace {
using Clock = std::chrono::steady_clock;

double millisecondsOf(const QStringList &arguments)
{
    const auto start = Clock::now();
    QProcess process;
    process.start(QStringLiteral(FIRST_PICTURE), arguments);
    process.waitForFinished();
    const std::chrono::duration<double, std::milli> time = Clock::now() - start;
    return process.exitCode() == 0 ? time.count() : -1;
}

double median(std::vector<double> samples)
{
    std::ranges::nth_element(samples, samples.begin() + std::ssize(samples) / 2);
    return samples.at(samples.size() / 2);
}

// Both from the start of the process to the first picture, in turn.
void firstPicture(benchmark::State &state)
{
    constexpr double limit = 3;
    std::vector<double> bare;
    std::vector<double> product;
    millisecondsOf({QStringLiteral("product")});
    for (auto _ : state) {
        bare.push_back(millisecondsOf({}));
        product.push_back(millisecondsOf({QStringLiteral("product")}));
        state.SetIterationTime(product.back() / 1000);
    }
    state.counters["bare_ms"] = median(bare);
    state.counters["product_ms"] = median(product);
    state.counters["ratio"] = median(product) / median(bare);
    state.counters["limit"] = limit;
    if (median(product) / median(bare) > limit || std::ranges::min(bare) < 0)
        state.SetLabel("ABOVE ITS LIMIT");
}

// One step of a slide between two pages: the positions and everything painted for them.
void slideFrame(benchmark::State &state)
{
    constexpr double limit = 10;
    MainWindow window;
    window.setGeometry(0, 0, 854, 480);
    window.show();
    while (!window.windowHandle()->isExposed())
        QApplication::processEvents();
    auto *view = window.findChild<MainView *>();
    int frame = -1000;
    const auto step = [&] {
        frame = frame <= -2000 ? -1000 : frame - 32;
        QMetaObject::invokeMethod(view, "change_page", Q_ARG(int, frame));
        view->viewport()->repaint();
    };
    step();
    QApplication::processEvents();
    Yardstick::measure(state, limit, step, [] { QApplication::processEvents(); });
}
} // namespace

BENCHMARK(firstPicture)->UseManualTime()->Iterations(15)->Unit(benchmark::kMillisecond);
BENCHMARK(slideFrame)->UseManualTime()->Iterations(300)->Unit(benchmark::kMicrosecond);
