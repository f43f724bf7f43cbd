#include "history/ChartDots.h"

#include <QLinearGradient>

namespace {
constexpr int ownAlpha = 204;
constexpr int otherAlpha = 76;
} // namespace

void ChartDots::draw(QImage *picture, const ChartFrame &frame, const QMap<int, float> &readings,
                     PmColorGenerator *colors)
{
    // A widget too narrow for its margins has no time axis to place a dot on.
    if (frame.times.pxPerHour <= 0.0F)
        return;
    QList<QPointF> ownDays;
    QList<QPointF> otherDays;
    for (auto reading = readings.cbegin(); reading != readings.cend(); ++reading) {
        const bool isOwn = frame.days.contains(reading.key());
        if (isOwn || frame.otherDays)
            (isOwn ? ownDays : otherDays)
                .append({frame.times.toX(reading.key()),
                         double(ChartScale::truncated(frame.values.toY(reading.value())))});
    }

    QLinearGradient scale(0, 0, 0, frame.values.bottom);
    const auto addColor = [&](double place, float value) {
        QColor color = colors->colorOfPm(value);
        color.setAlpha(ownAlpha);
        scale.setColorAt(place, color);
    };
    addColor(0, frame.range.max);
    addColor(1, frame.range.min);
    own.draw(picture, ownDays, scale);
    other.draw(picture, otherDays, QColor(255, 255, 255, otherAlpha));
}
