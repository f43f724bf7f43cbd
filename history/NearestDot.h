#pragma once

#include "history/LocalTime.h"

#include <QList>

/// The outcome of a search for the dot nearest to a finger: indexes of readings, -1 for none.
struct NearestDot
{
    /// Why this dot: left of all dots of the days.
    static constexpr int leftOfAll = 1;
    /// Why this dot: the finger is between two dots and the left or the right one is nearer.
    static constexpr int leftNeighbour = 2;
    static constexpr int rightNeighbour = 3;
    /// Why this dot: right of all dots, or there is none.
    static constexpr int lastPassed = 4;

    int reason = lastPassed;
    int first = -1;     ///< the first reading of the days searched
    int candidate = -1; ///< the reading found

    bool operator==(const NearestDot &) const = default;
};

/// Finds the dot nearest to the finger at @p x among the readings within @p days; at equal distance
/// the right one. @p times ascends, and @p screenXs holds the x of each, which within one local day
/// never decreases. Where several days lie on one axis, the earliest day with a dot at or right of
/// the finger decides. A single reading is never found.
NearestDot nearestDot(const QList<int> &times, const QList<int> &screenXs, LocalTime::Range days,
                      float x);

/// Finds the entry of the ascending @p times nearest to @p time, the later one at equal distance;
/// -1 when @p time is not before the last entry and for fewer than two entries. Compares in float,
/// which counts Unix times in steps of 128 s.
int nearestTime(const QList<int> &times, float time);
