#include "history/NearestDot.h"

#include <algorithm>

NearestDot nearestDot(const QList<int> &times, const QList<int> &screenXs, LocalTime::Range days,
                      float x)
{
    NearestDot result;
    // Kept[single-reading]: one alone is drawn and cannot be touched.
    if (times.size() < 2 || screenXs.size() != times.size())
        return result;
    const auto indexOf = [&](qint64 time) {
        return int(std::lower_bound(times.cbegin(), times.cend(), time) - times.cbegin());
    };
    const int first = indexOf(days.start);
    const int end = indexOf(days.end);
    if (first >= end)
        return result;

    result.first = first;
    if (float(screenXs[first]) > x) {
        result.reason = NearestDot::leftOfAll;
        result.candidate = first;
        return result;
    }
    // The x of the dots starts anew with every day, so each day is searched by itself.
    for (int from = first + 1; from < end;) {
        const qint64 midnight = LocalTime::startOfDay(times[from]) + LocalTime::secondsPerDay;
        const int to = std::min(end, indexOf(midnight));
        const auto right = std::partition_point(screenXs.cbegin() + from, screenXs.cbegin() + to,
                                                [x](int dot) { return !(x <= float(dot)); });
        if (right != screenXs.cbegin() + to) {
            const bool leftIsNearer = x - float(*std::prev(right)) < float(*right) - x;
            result.reason = leftIsNearer ? NearestDot::leftNeighbour : NearestDot::rightNeighbour;
            result.candidate = int(right - screenXs.cbegin()) - (leftIsNearer ? 1 : 0);
            return result;
        }
        from = to;
    }
    result.candidate = end - 1;
    return result;
}

int nearestTime(const QList<int> &times, float time)
{
    // Kept[times-in-float]: in steps of 128 s.
    if (times.size() < 2)
        return -1;
    if (float(times.first()) > time)
        return times.first();
    const auto later = std::upper_bound(times.cbegin(), times.cend(), time,
                                        [](float t, int entry) { return t < float(entry); });
    if (later == times.cend())
        return -1;
    const int earlier = *std::prev(later);
    return time - float(earlier) < float(*later) - time ? earlier : *later;
}
