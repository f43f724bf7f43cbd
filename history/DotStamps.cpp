#include "history/DotStamps.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {
// Some megabytes. Readings at regular times have a hundred places.
constexpr qsizetype mostStamps = 4096;
constexpr qsizetype bytesOfPixel = 4;

void drawPoints(QImage *picture, const QList<QPointF> &centers, const QBrush &brush, int size)
{
    QPainter painter(picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(brush, size, Qt::SolidLine, Qt::RoundCap));
    // One by one: drawn together, dots that overlap would melt into one shape.
    for (const QPointF &center : centers)
        painter.drawPoint(center);
}

// Rounds as the painter does; 0 and 255 are exact.
constexpr quint16 thinned(quint16 channel, quint16 share)
{
    const auto product = quint16(channel * share);
    return quint16(product + (product >> 8) + 128) >> 8;
}

// In a form of which the compiler makes many bytes at once.
void layOver(uchar *row, const uchar *stamp, const uchar *ink, qsizetype bytes)
{
    const quint16 alpha = qAlpha(*reinterpret_cast<const QRgb *>(ink));
    for (qsizetype i = 0; i < bytes; ++i) {
        const auto left = quint16(255 - thinned(alpha, stamp[i]));
        row[i] = uchar(thinned(ink[i], stamp[i]) + thinned(row[i], left));
    }
}
} // namespace

// One pixel more, as a dot begins between two, in whole steps of layOver().
DotStamps::DotStamps(int diameter)
    : size(diameter)
    , width((diameter + 2 + 3) / 4 * 4)
{
}

void DotStamps::draw(QImage *picture, const QList<QPointF> &centers, const QBrush &brush)
{
    if (picture->devicePixelRatio() != 1) {
        drawPoints(picture, centers, brush, size);
        return;
    }
    QImage ink(width, picture->height(), QImage::Format_ARGB32_Premultiplied);
    ink.fill(Qt::transparent);
    QPainter(&ink).fillRect(ink.rect(), brush);

    const auto stampBytes = ink.bytesPerLine();
    const uchar *inks = ink.constBits();
    const auto rowBytes = picture->bytesPerLine();
    uchar *rows = picture->bits();
    for (const QPointF &center : centers) {
        const double whole = std::floor(center.x());
        const int x = int(whole) - size / 2;
        const int y = int(center.y()) - size / 2;
        const int left = std::max(x, 0);
        const int right = std::min(x + width, picture->width());
        const int end = std::min(y + size, picture->height());
        if (left >= right)
            continue;
        const uchar *stamp = stampAt(center.x() - whole);
        for (int row = std::max(y, 0); row < end; ++row)
            layOver(rows + row * rowBytes + left * bytesOfPixel,
                    stamp + (row - y) * stampBytes + (left - x) * bytesOfPixel,
                    inks + row * stampBytes, (right - left) * bytesOfPixel);
    }
}

// Where a dot is drawn between two pixels, and white, so that each byte of a pixel is its coverage.
const uchar *DotStamps::stampAt(double fraction)
{
    const auto known = places.constFind(fraction);
    if (known != places.cend())
        return stamps.data() + *known;
    if (places.size() >= mostStamps) {
        places.clear();
        stamps.clear();
    }
    QImage stamp(width, size, QImage::Format_ARGB32_Premultiplied);
    stamp.fill(Qt::transparent);
    const int middle = size / 2;
    drawPoints(&stamp, {QPointF(middle + fraction, middle)}, Qt::white, size);
    const std::size_t place = stamps.size();
    places.insert(fraction, place);
    stamps.insert(stamps.end(), stamp.constBits(), stamp.constBits() + stamp.sizeInBytes());
    return stamps.data() + place;
}
