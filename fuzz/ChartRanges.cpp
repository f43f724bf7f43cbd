#include "fuzz/Targets.h"
#include "history/ChartScale.h"

#include <QDataStream>
#include <cmath>

void fuzzChartRanges(const QByteArray &bytes)
{
    QDataStream numbers(bytes);
    numbers.setFloatingPointPrecision(QDataStream::SinglePrecision);
    qint16 height = 0;
    qint8 divisions = 0;
    qint64 today = 0;
    numbers >> height >> divisions >> today;
    QMap<int, float> readings;
    while (!numbers.atEnd()) {
        int time = 0;
        numbers >> time >> readings[time];
    }

    const auto [ofToday, ofAll] = valueRangesOf(readings, today, divisions);
    for (const ValueRange &range : {ofToday, ofAll}) {
        // Beyond 16 millions neighbouring fives can be the same float.
        hold(range.min < range.max || (range.min == range.max && std::abs(range.min) > 16777216.0F),
             "a range has a span");
        const auto scale = ChartScale::valuesOf(height, 60, 64, range);
        const auto ticks = ChartScale::valueTicks(scale, range, divisions);
        hold(ticks.size() <= 32768, "an axis ends");
    }
}
