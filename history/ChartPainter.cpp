#include "history/ChartPainter.h"

#include <QImage>
#include <QLinearGradient>
#include <algorithm>

namespace {
constexpr int labelSize = 18;
constexpr int hourLabelsBelowPlot = 28;
constexpr int valueLabelsRightOfPlot = 20;
constexpr int valueLabelsBelowLine = 10;
constexpr int gridAlpha = 25;
constexpr int markerLineWidth = 2;
constexpr int markerLineFadesAboveFoot = 50;
constexpr int ringSize = 18;
// Half a pen and one pixel of antialiasing.
constexpr int ringAir = 2;
constexpr int ringReach = ringSize / 2 + ringAir;

// As the painter thins a colour where it covers a pixel in part.
QRgb tinted(QRgb color, int alpha)
{
    return qPremultiply((color & 0xFFFFFF) | (unsigned(alpha) << 24));
}

// A line down the chart that fades from color to nothing. The painter would hand a gradient of this
// height to its threads, which takes ten times as long as the pixels do.
QImage fadingLine(QRgb color, int height)
{
    QImage line(markerLineWidth, height, QImage::Format_ARGB32_Premultiplied);
    line.fill(Qt::transparent);
    auto *pixels = reinterpret_cast<QRgb *>(line.bits());
    const int end = height - markerLineFadesAboveFoot;
    for (int y = 0; y < end; ++y, pixels += markerLineWidth)
        std::fill_n(pixels, markerLineWidth, tinted(color, qRound(255.0 * (end - y - 0.5) / end)));
    return line;
}

// The outline of a ring costs more than its pixels, and all rings lie on whole ones.
QImage ringPart(const QPen &edge, const QBrush &inside)
{
    QImage part(ringSize + 2 * ringAir, ringSize + 2 * ringAir,
                QImage::Format_ARGB32_Premultiplied);
    part.fill(Qt::transparent);
    QPainter painter(&part);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(edge);
    painter.setBrush(inside);
    painter.drawEllipse(ringAir, ringAir, ringSize, ringSize);
    return part;
}

QImage disc(QRgb color)
{
    static const QImage white = ringPart(Qt::NoPen, Qt::white);
    QImage disc = white;
    auto *pixels = reinterpret_cast<QRgb *>(disc.bits());
    std::transform(pixels, pixels + disc.sizeInBytes() / qsizetype(sizeof(QRgb)), pixels,
                   [color](QRgb pixel) { return tinted(color, qAlpha(pixel)); });
    return disc;
}

QRect ringRect(const ChartMarker &marker)
{
    return QRect(marker.x, marker.y, 0, 0).adjusted(-ringReach, -ringReach, ringReach, ringReach);
}
} // namespace

bool ChartFrame::hasAxesOf(ChartFrame other) const
{
    other.days = days;
    other.otherDays = otherDays;
    other.series = series;
    return *this == other;
}

ChartPainter::ChartPainter(QPainter *target, const ChartFrame &shown)
    : painter(target)
    , frame(shown)
{
    painter->setRenderHint(QPainter::Antialiasing);
    // The default family of the device.
    QFont font(QStringLiteral("Helvetica"));
    font.setPixelSize(labelSize);
    painter->setFont(font);
}

void ChartPainter::drawAxes()
{
    drawHourAxis();
    drawValueAxis();
}

void ChartPainter::drawHourAxis()
{
    const QPen labels = labelPen();
    const QPen lines = gridPen({0, 0}, {0, frame.values.bottom});
    const int labelY = ChartScale::truncated(frame.values.bottom + float(hourLabelsBelowPlot));
    const auto ticks =
        ChartScale::hourTicks(frame.times, frame.size.width(), frame.rightMargin, frame.hours);
    for (const ChartScale::HourTick &tick : ticks) {
        if (frame.revealed < 1 && tick.x >= frame.revealed * frame.size.width())
            break;
        painter->setPen(labels);
        painter->drawText(tick.labelX, labelY, QString::number(tick.hour));
        if (tick.hasLine) {
            painter->setPen(lines);
            painter->drawLine(QPointF(tick.x, frame.values.top),
                              QPointF(tick.x, frame.values.bottom));
        }
    }
}

void ChartPainter::drawValueAxis()
{
    const int width = frame.size.width();
    const QPen labels = labelPen();
    const QPen lines = gridPen({0, 0}, {double(width), 0});
    const int labelX =
        ChartScale::truncated(float(width) - frame.rightMargin + float(valueLabelsRightOfPlot));
    const auto ticks = ChartScale::valueTicks(frame.values, frame.range, frame.valueDivisions);
    for (const ChartScale::ValueTick &tick : ticks) {
        if (frame.revealed >= 1) {
            painter->setPen(labels);
            painter->drawText(labelX, tick.y + valueLabelsBelowLine, QString::number(tick.value));
        }
        painter->setPen(lines);
        painter->drawLine(QPointF(0, tick.y), QPointF(width * frame.revealed, tick.y));
    }
}

void ChartPainter::drawMarker(const ChartMarker &marker)
{
    static const QImage ring = ringPart(QPen(Qt::white, 2), Qt::NoBrush);
    const QRgb color = marker.color.rgb();
    painter->drawImage(marker.x - markerLineWidth / 2, 0, fadingLine(color, frame.size.height()));
    const QPoint place = ringRect(marker).topLeft();
    painter->drawImage(place, disc(color));
    painter->drawImage(place, ring);
}

QRect ChartPainter::markerRect(const ChartMarker &marker, int height)
{
    const QRect ring = ringRect(marker);
    return {ring.x(), 0, ring.width(), height};
}

QPen ChartPainter::labelPen() const
{
    QBrush brush(Qt::white);
    if (frame.revealed < 1) {
        QLinearGradient gradient(0, 0, frame.size.width() * frame.revealed, 0);
        gradient.setColorAt(0, Qt::white);
        gradient.setColorAt(0.8, Qt::white);
        gradient.setColorAt(1, Qt::transparent);
        brush = gradient;
    }
    return {brush, 5, Qt::SolidLine, Qt::RoundCap};
}

QPen ChartPainter::gridPen(QPointF from, QPointF to) const
{
    QLinearGradient gradient(from, to);
    gradient.setColorAt(0, Qt::transparent);
    gradient.setColorAt(0.5, QColor(0, 0xE5, 0xFF, gridAlpha));
    gradient.setColorAt(1, Qt::transparent);
    return {gradient, 2, Qt::SolidLine, Qt::SquareCap};
}
