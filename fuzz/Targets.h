#pragma once

#include <QByteArray>
#include <span>

/// What is fuzzed: each target takes any bytes as one input from outside the program, or as the
/// numbers of one computation, and ends the process where a promise of that code is broken.

struct FuzzTarget
{
    const char *name; ///< of the folder of its corpus, too
    void (*run)(const QByteArray &bytes);
};

/// All of them, in the order of their names.
std::span<const FuzzTarget> fuzzTargets();

void fuzzChartRanges(const QByteArray &bytes);
void fuzzColorNames(const QByteArray &bytes);
void fuzzFrame(const QByteArray &bytes);
void fuzzLanguageFile(const QByteArray &bytes);
void fuzzNearestDot(const QByteArray &bytes);
void fuzzScanFile(const QByteArray &bytes);
void fuzzSensorText(const QByteArray &bytes);
void fuzzTimeZones(const QByteArray &bytes);

/// Ends the process with @p promise where it is not @p kept.
void hold(bool kept, const char *promise);
