#include "settings/TimeZoneItemDelegate.h"

#include <QDebug>
#include <QPainter>

namespace {
constexpr int textLeft = 71;
constexpr int hairlineRight = 783;
constexpr int checkMarkLeft = 735;
constexpr int zoneBaseline = 53;
constexpr int zonePixels = 30;
constexpr int descriptionBaseline = 92;
constexpr int descriptionPixels = 24;

void drawLine(QPainter *painter, QFont font, int pixels, const QPoint &baseline, int alpha,
              const QString &text)
{
    font.setPixelSize(pixels);
    painter->setFont(font);
    painter->setPen(QColor(255, 255, 255, alpha));
    painter->drawText(baseline, text);
}
} // namespace

timeZoneItem timeZoneItem::fromLine(const QString &line)
{
    return {line.section(QLatin1Char('\t'), 0, 0), line.section(QLatin1Char('\t'), 1, 1)};
}

TimeZoneItemDelegate::TimeZoneItemDelegate(const QPixmap &checkMark, QObject *parent)
    : QStyledItemDelegate(parent)
    , pixChecked(checkMark)
{
    if (pixChecked.isNull())
        qDebug("pixChecked error");
}

void TimeZoneItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const
{
    const QString text = index.data().toString();
    const QRect row = option.rect;
    painter->save();
    painter->setClipRect(row);
    if (index.column() == 0) {
        const timeZoneItem item = timeZoneItem::fromLine(text);
        const QPoint origin = row.topLeft() + QPoint(textLeft, 0);
        drawLine(painter, option.font, zonePixels, origin + QPoint(0, zoneBaseline), 255,
                 item.zone);
        drawLine(painter, option.font, descriptionPixels, origin + QPoint(0, descriptionBaseline),
                 127, item.description);
    } else if (text == QLatin1String("1")) {
        // Places count from the left edge of the screen, where the list begins as well.
        // Not from the centre, which lies otherwise where the row reaches above the list.
        painter->drawPixmap(checkMarkLeft, row.top() + row.height() / 2 - pixChecked.height() / 2,
                            pixChecked);
    }
    painter->fillRect(textLeft, row.bottom(), hairlineRight - textLeft, 1,
                      QColor(255, 255, 255, 25));
    painter->restore();
}
