#include "mainscreen/PageDots.h"

#include "pages/Look.h"
#include "pages/Quantity.h"

#include <QPainter>

namespace {
constexpr int count = int(quantities.size());
constexpr int diameter = 6;
constexpr int pitch = 18;
constexpr QSize size((count - 1) * pitch + diameter, diameter);
constexpr QPoint centre(331, 470);
constexpr QColor unlit(255, 255, 255, 60);
} // namespace

PageDots::PageDots()
{
    setPos(centre - QPoint(size.width(), size.height()) / 2);
}

void PageDots::light(int page)
{
    if (page == lit)
        return;
    lit = page;
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (int dot = 0; dot < count; ++dot) {
        painter.setBrush(dot == lit ? Look::accent : unlit);
        painter.drawEllipse(dot * pitch, 0, diameter, diameter);
    }
    painter.end();
    setPixmap(picture);
}
