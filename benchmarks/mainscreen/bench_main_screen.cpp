#include "benchmarks/support/Yardstick.h"
#include "mainscreen/BaseScene.h"
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

/// The main window on the screen, with its view.
struct Screen
{
    Screen()
    {
        window.setGeometry(0, 0, 854, 480);
        window.show();
        while (!window.windowHandle()->isExposed())
            QApplication::processEvents();
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
