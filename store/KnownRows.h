#pragma once

#include <QVariantList>
#include <optional>

/// What is known of a table's rows without reading it, which takes the whole table, as no key leads
/// to a row. Holds as long as nobody else writes to the table. Times in Unix seconds.
class KnownRows
{
public:
    /// Tells whether there surely is no row up to @p time.
    bool endAfter(qint64 time) const { return emptyUpTo && time <= *emptyUpTo; }

    /// Gives the values of the first row of that second, none where there surely is no row. Null
    /// where only the table can tell.
    std::optional<QVariantList> at(qint64 time) const;

    /// Takes note of what the table told: all up to @p time was dropped,
    void drop(qint64 time);
    /// the first row of that second holds @p values, none where there is no row, and the next later
    /// row is of the second @p next,
    void read(qint64 time, const QVariantList &values, qint64 next);
    /// a row with @p values was added.
    void add(qint64 time, const QVariantList &values);

private:
    // One second, and none of the table's rows between it and the next.
    struct Second
    {
        qint64 time;
        QVariantList values;
        qint64 next;
    };

    std::optional<qint64> emptyUpTo;
    std::optional<Second> latest;
};
