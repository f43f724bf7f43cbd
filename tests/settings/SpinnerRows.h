#pragma once

#include "settings/QmlApplicationViewer.h"

#include <QColor>
#include <QList>

/// One row of a spinner as it stands in its host.
struct SpinnerRow
{
    QString text;
    double middle; ///< px below the top of the host
    QColor colour;
};

/// The rows that @p host has placed, from top to bottom.
QList<SpinnerRow> spinnerRows(const QmlApplicationViewer *host);

/// The text of the row in the middle of @p host.
QString currentText(const QmlApplicationViewer *host);
