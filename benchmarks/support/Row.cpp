#include "benchmarks/support/Row.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <thread>

namespace {
using namespace std::chrono_literals;

constexpr auto frameTime = 16ms;
constexpr auto quickTime = 6ms;
constexpr int warmingTurns = 5;
// A timer of no length would keep the loop busy for ever.
constexpr int longestTurn = 20;

const Yardstick &yardstick()
{
    static const Yardstick measured;
    return measured;
}

void add(const Rows::Entry &entry, const char *pace, std::chrono::milliseconds pause)
{
    const auto measure = [entry, pause](benchmark::State &state) {
        for (auto _ : state) {
            Row row(state, pause, entry.samples);
            entry.measure(row);
        }
    };
    benchmark::RegisterBenchmark((entry.name + '/' + pace).c_str(), measure)->Iterations(1);
}
} // namespace

Row::Row(benchmark::State &reportedTo, std::chrono::milliseconds pauseBefore, int wantedSamples)
    : state(reportedTo)
    , pause(pauseBefore)
    , wanted(std::size_t(wantedSamples))
    , unit(yardstick().copy())
{
}

Row::~Row()
{
    constexpr double micro = 1e6;
    state.counters["copy_us"] = yardstick().copy().count() * micro;
    state.counters["copy_p5_us"] = yardstick().copy(0.05).count() * micro;
    state.counters["copy_p95_us"] = yardstick().copy(0.95).count() * micro;
    state.counters["turns"] = turnsTaken;
    if (samples.empty())
        return;
    const double median = Yardstick::quantile(samples, 0.5);
    state.counters["median_us"] = median * micro;
    state.counters["p95_us"] = Yardstick::quantile(samples, 0.95) * micro;
    state.counters["figure"] = median / unit.count();
}

void Row::runLoop(const Work &event)
{
    if (event)
        event();
    auto *loop = QAbstractEventDispatcher::instance();
    for (int round = 0; round < longestTurn && loop->processEvents(QEventLoop::AllEvents); ++round)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Row::Seconds Row::turn(const Work &event)
{
    ++turnsTaken;
    std::this_thread::sleep_for(pause);
    Seconds time = Yardstick::timeOf([&event] { runLoop(event); });
    if (isQuick) {
        // Sleep would cool the caches.
        const QDeadlineTimer drawing(quickTime);
        while (!drawing.hasExpired()) {
        }
        time += Yardstick::timeOf([] { runLoop(); });
    }
    return time;
}

void Row::add(Seconds sample)
{
    samples.push_back(sample.count());
}

void Row::turns(const Work &event, const Work &prepare)
{
    for (int warming = warmingTurns; isOpen(); --warming) {
        if (prepare)
            runLoop(prepare);
        const Seconds sample = turn(event);
        if (warming <= 0)
            add(sample);
    }
}

Rows::Rows(const std::vector<Entry> &entries)
{
    for (const Entry &entry : entries) {
        add(entry, "warm", 0ms);
        if (entry.isPaced)
            add(entry, "paced", frameTime);
    }
}
