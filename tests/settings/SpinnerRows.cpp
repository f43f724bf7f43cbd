#include "tests/settings/SpinnerRows.h"

#include <QQuickItem>
#include <algorithm>

namespace {
void collectTexts(const QQuickItem *item, QList<SpinnerRow> &rows)
{
    for (const QQuickItem *child : item->childItems()) {
        const QVariant text = child->property("text");
        if (text.isValid() && child->isVisible()) {
            rows.append({text.toString(), child->mapToScene({0, child->height() / 2}).y(),
                         child->property("color").value<QColor>()});
        }
        collectTexts(child, rows);
    }
}
} // namespace

QList<SpinnerRow> spinnerRows(const QmlApplicationViewer *host)
{
    QList<SpinnerRow> rows;
    if (host->rootObject() != nullptr)
        collectTexts(host->rootObject(), rows);
    std::sort(rows.begin(), rows.end(),
              [](const SpinnerRow &a, const SpinnerRow &b) { return a.middle < b.middle; });
    return rows;
}

QString currentText(const QmlApplicationViewer *host)
{
    for (const SpinnerRow &row : spinnerRows(host)) {
        if (row.colour == QColor("#00e5ff"))
            return row.text;
    }
    return {};
}
