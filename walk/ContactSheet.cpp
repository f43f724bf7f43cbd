#include "walk/ContactSheet.h"

#include <QPainter>

namespace {
constexpr int columns = 5;
constexpr QSize thumbnail(427, 240);
constexpr int gap = 16;
constexpr int captionHeight = 32;
constexpr QSize cell(thumbnail.width() + gap, thumbnail.height() + captionHeight + gap);
} // namespace

QImage contactSheet(const QList<NamedPicture> &pictures)
{
    const int rows = (int(pictures.size()) + columns - 1) / columns;
    QImage sheet(columns * cell.width() + gap, rows * cell.height() + gap, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QFont font(QStringLiteral("Heiti SC"));
    font.setPixelSize(20);
    painter.setFont(font);
    for (int index = 0; index < pictures.size(); ++index) {
        const QPoint corner(gap + index % columns * cell.width(),
                            gap + index / columns * cell.height());
        const QRect caption(corner + QPoint(0, thumbnail.height()),
                            QSize(thumbnail.width(), captionHeight));
        painter.drawImage(QRect(corner, thumbnail), pictures[index].picture);
        painter.drawText(caption, Qt::AlignLeft | Qt::AlignVCenter, pictures[index].name);
    }
    return sheet;
}
