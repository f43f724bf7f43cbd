#pragma once

#include <QAbstractItemModel>

/// Lists what @p model says for @p role, row by row.
inline QVariantList columnOf(const QAbstractItemModel &model, int role)
{
    QVariantList values;
    for (int row = 0; row < model.rowCount(); ++row)
        values.append(model.index(row, 0).data(role));
    return values;
}
