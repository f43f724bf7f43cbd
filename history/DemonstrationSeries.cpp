#include "history/DemonstrationSeries.h"

#include "history/LocalTime.h"

#include <cmath>
#include <limits>

namespace {
constexpr qint64 secondsPerSample = 900;
constexpr int samplesPerHour = 4;
constexpr qint64 leadOfFirstRound = 558000;
constexpr qint64 leadOfSamples = 82800;

float valueOf(int sample, int quantity)
{
    const double q = quantity;
    return float(q * 10 + (std::sin(sample * 0.0625) + q) * 10.0 * (q + 1));
}
} // namespace

QMap<int, float> demonstrationSeries(qint64 now, int quantity, const std::function<int()> &random)
{
    QMap<int, float> series;
    qint64 base = LocalTime::startOfDay(now) - leadOfFirstRound;
    int counter = 624;
    for (int hour = 155; hour > 13; --hour) {
        if (random() % 3 != 0) {
            for (int sample = 0; sample < samplesPerHour; ++sample) {
                const qint64 time = base + leadOfSamples + secondsPerSample * sample;
                if (time >= std::numeric_limits<int>::min() &&
                    time <= std::numeric_limits<int>::max())
                    series.insert(int(time), valueOf(counter - sample, quantity));
            }
        }
        counter -= samplesPerHour;
        base += LocalTime::secondsPerHour;
    }
    return series;
}
