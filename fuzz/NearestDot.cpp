#include "history/NearestDot.h"

#include "fuzz/Targets.h"

#include <QDataStream>
#include <algorithm>

void fuzzNearestDot(const QByteArray &bytes)
{
    QDataStream numbers(bytes);
    numbers.setFloatingPointPrecision(QDataStream::SinglePrecision);
    LocalTime::Range days;
    float x = 0;
    QList<int> times;
    QList<int> xs;
    numbers >> days.start >> days.end >> x;
    while (!numbers.atEnd()) {
        int time = 0;
        qint16 screenX = 0;
        numbers >> time >> screenX;
        times.append(time);
        xs.append(screenX);
    }
    std::sort(times.begin(), times.end());
    std::sort(xs.begin(), xs.end());

    const NearestDot dot = nearestDot(times, xs, days, x);
    hold(dot.candidate < times.size(), "the dot is one of the readings");
    hold((dot.candidate < 0) == (dot.first < 0), "a dot is found where there are any");
    hold(dot.candidate >= dot.first, "the dot is one of the days searched");
    hold(dot.candidate < 0 || days.contains(times[dot.candidate]), "the dot lies within the days");
    const int nearest = nearestTime(times, x);
    hold(nearest == -1 || times.contains(nearest), "the nearest time is a reading's");
}
