#include "connectivity/NetworkName.h"

#include <QFontMetrics>
#include <QLabel>

namespace {
// More than any place can show: measuring the width of a longer text would only take time.
constexpr int longestName = 256;
} // namespace

QString elidedName(const QString &name, const QFontMetrics &metrics, int width)
{
    return metrics.elidedText(name.left(longestName), Qt::ElideRight, width);
}

void showName(const QString &name, QLabel *title)
{
    // The style sheet gives the font no sooner.
    title->ensurePolished();
    title->setTextFormat(Qt::PlainText);
    title->setText(elidedName(name, title->fontMetrics(), title->width()));
}
