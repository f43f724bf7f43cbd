#pragma once

#include "benchmarks/support/Yardstick.h"

#include <benchmark/benchmark.h>
#include <string>

/// One row of the table: what the real program takes for something, in copies of a frame.
///
/// Its samples are taken one at a time: warm, right after one another, or paced, each after a pause
/// of 16 ms like the frames of the screen.
class Row
{
public:
    using Work = std::function<void()>;
    using Seconds = Yardstick::Seconds;

    Row(benchmark::State &reportedTo, std::chrono::milliseconds pauseBefore, int wantedSamples);
    /// Reports the samples as counters of the state.
    ~Row();
    Row(const Row &) = delete;
    Row &operator=(const Row &) = delete;

    /// Takes one sample for each turn of the event loop that @p event begins. @p prepare runs
    /// before each of them, with a turn of its own that is not counted.
    void turns(const Work &event, const Work &prepare = {});

    /// Tells whether samples are missing still.
    bool isOpen() const { return samples.size() < wanted; }
    void add(Seconds sample);
    /// Waits for the pace, then returns what @p event and all that it sets off cost this thread:
    /// timers, animation, layout, scene, painting and flush. Never inline: its instructions are
    /// counted by its name.
    [[gnu::noinline]] Seconds turn(const Work &event);

    /// Runs @p event and the event loop until nothing waits in it any more.
    static void runLoop(const Work &event = {});

    /// Has every turn go on until Qt Quick, which collects changes for 5 ms, has drawn them.
    void includeQuick() { isQuick = true; }

    /// Counts in @p other instead of copies.
    void measureIn(Seconds other) { unit = other; }
    /// Reports @p value, which is no time, with whatever unit the row's name tells.
    void figure(double value) { state.counters["figure"] = value; }
    void fail(const char *reason) { state.SkipWithError(reason); }

private:
    benchmark::State &state;
    std::chrono::milliseconds pause;
    std::size_t wanted;
    Seconds unit;
    std::vector<double> samples;
    int turnsTaken = 0;
    bool isQuick = false;
};

/// Registers rows with the benchmark program, each warm and, where it has frames, paced.
struct Rows
{
    struct Entry
    {
        std::string name;
        std::function<void(Row &)> measure;
        int samples = 150;
        bool isPaced = true; ///< false: measured once, there is nothing to pause before
    };
    explicit Rows(const std::vector<Entry> &entries);
};
