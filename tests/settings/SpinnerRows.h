#pragma once

#include "settings/QmlApplicationViewer.h"

#include <QColor>
#include <QQuickItem>

/// The rows that the spinner of @p host has placed, from top to bottom, each a QML text.
inline QList<QQuickItem *> spinnerRows(const QmlApplicationViewer *host)
{
    QList<QQuickItem *> rows;
    for (auto *item :
         host->rootObject()->findChild<QQuickItem *>("wheel")->childItems()[0]->childItems()) {
        if (item->property("text").isValid())
            rows << item;
    }
    std::sort(rows.begin(), rows.end(), [](auto *a, auto *b) { return a->y() < b->y(); });
    return rows;
}

/// The middle of @p row in px below the top of its host.
inline double middleOf(const QQuickItem *row)
{
    return row->mapToScene({0, row->height() / 2}).y();
}

/// The text of the row in the middle of @p host.
inline QString currentText(const QmlApplicationViewer *host)
{
    for (const auto *row : spinnerRows(host)) {
        if (row->property("color").value<QColor>() == QColor("#00e5ff"))
            return row->property("text").toString();
    }
    return {};
}
