#include "settings/OptionFrame.h"

#include "pages/Look.h"

#include <QPainter>

namespace {
constexpr double edge = 1.3;
} // namespace

void OptionFrame::paintLight(QPainter &painter, int radius) const
{
    painter.drawRoundedRect(contentsRect(), radius, radius);
    painter.setPen(QPen(Look::lightEdge, edge));
    painter.setBrush(Qt::NoBrush);
    const QRectF middle = QRectF(contentsRect()).adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2);
    painter.drawRoundedRect(middle, radius - edge / 2, radius - edge / 2);
}
