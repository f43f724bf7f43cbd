#include "store/KnownRows.h"

std::optional<QVariantList> KnownRows::at(qint64 time) const
{
    if (!latest || time < latest->time || time >= latest->next)
        return std::nullopt;
    return time == latest->time ? latest->values : QVariantList();
}

void KnownRows::drop(qint64 time)
{
    emptyUpTo = time;
    if (latest && latest->time <= time)
        latest->values.clear();
}

void KnownRows::read(qint64 time, const QVariantList &values, qint64 next)
{
    latest = {time, values, next};
}

void KnownRows::add(qint64 time, const QVariantList &values)
{
    // A clock that was set back.
    if (endAfter(time))
        emptyUpTo.reset();
    const std::optional<QVariantList> present = at(time);
    if (!present)
        latest.reset();
    else if (present->isEmpty())
        latest = {time, values, latest->next};
}
