#pragma once

#include <QTest>
#include <initializer_list>

/// Fills the table of a `_data()` function: one row of the test for each of @p rows, named by its
/// field `name`. The test fetches its own with QFETCH(Row, row).
template <class Row>
void addRows(std::initializer_list<Row> rows)
{
    QTest::addColumn<Row>("row");
    for (const Row &row : rows)
        QTest::newRow(row.name) << row;
}
