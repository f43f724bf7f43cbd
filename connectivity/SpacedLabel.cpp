#include "connectivity/SpacedLabel.h"

#include <QPainter>

void SpacedLabel::paintEvent(QPaintEvent *)
{
    QString broken = text();
    if (wordWrap())
        broken.replace(QLatin1String(", "), QLatin1String(",\n"));
    const QStringList lines = broken.split(QLatin1Char('\n'));

    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const int textHeight = int(lines.size()) * pitch;
    int top = alignment().testFlag(Qt::AlignVCenter) ? (height() - textHeight) / 2 : 0;
    for (const QString &line : lines) {
        painter.drawText(0, top + pitch * 4 / 5, line);
        top += pitch;
    }
}
