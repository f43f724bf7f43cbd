#include "history/ValueRange.h"

#include <QDebug>
#include <algorithm>
#include <cmath>

namespace {
// The largest float below the largest int.
constexpr float largestValue = 2147483520.0F;
// The axis counts in fives.
constexpr qint64 unit = 5;
// Where the search for the lowest and the highest reading begins.
constexpr float beyondValues = 2147483648.0F;

qint64 rounded(float value)
{
    return qint64(std::round(std::clamp(value, -largestValue, largestValue)));
}

void extend(ValueRange &range, float value)
{
    const float held = std::clamp(value, -largestValue, largestValue);
    range.min = std::min(range.min, held);
    range.max = std::max(range.max, held);
}
} // namespace

void findPerfectValueRange(float &min, float &max, int n)
{
    qint64 low = rounded(min - 0.4F);
    qint64 high = rounded(max + 0.4F);
    while (low % unit != 0)
        --low;
    while (high % unit != 0)
        ++high;

    const qint64 step = unit * std::max(n, 1);
    const qint64 target = std::max<qint64>(1, (high - low + step - 1) / step) * step;
    const qint64 missing = target - (high - low);
    if (missing % (2 * unit) == 0) {
        high += missing / 2;
        low -= missing / 2;
    } else if (missing % unit == 0) {
        high += (missing - unit) / 2;
        low -= (missing + unit) / 2;
    } else {
        qDebug() << "error calculate. params:" << min << max << n << "res:" << low << high;
    }
    min = float(low);
    max = float(high);
}

ValueRanges valueRangesOf(const QMap<int, float> &readings, qint64 todayStart, int divisions)
{
    if (readings.isEmpty())
        return {};

    const ValueRange nothing{beyondValues, -beyondValues};
    ValueRanges ranges{nothing, nothing};
    for (auto reading = readings.cbegin(); reading != readings.cend(); ++reading) {
        extend(ranges.all, reading.value());
        // Kept[both-midnights]: the one at the end of the day, too; and always of today, whichever
        // day is shown.
        if (reading.key() >= todayStart && reading.key() <= todayStart + LocalTime::secondsPerDay)
            extend(ranges.today, reading.value());
    }
    if (ranges.today == nothing)
        ranges.today = ranges.all;
    findPerfectValueRange(ranges.today.min, ranges.today.max, divisions);
    findPerfectValueRange(ranges.all.min, ranges.all.max, divisions);
    return ranges;
}
