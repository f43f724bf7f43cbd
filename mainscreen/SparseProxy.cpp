#include "mainscreen/SparseProxy.h"

#include "pages/Look.h"

#include <QGraphicsEffect>
#include <QPainter>
#include <QWidget>
#include <bit>
#include <functional>
#include <numeric>
#include <utility>

namespace {
// They tile the screen.
constexpr QSize cell(14, 16);
// To compose one piece more costs as much as composing so many empty cells.
constexpr int cellsOfPiece = 8;

// An item may not choose how its picture is composed, its effect may.
class Composer : public QGraphicsEffect
{
public:
    explicit Composer(SparseProxy *composed)
        : proxy(composed)
    {
    }

protected:
    void draw(QPainter *painter) override
    {
        // The scene asks for what has changed only where it draws the item.
        painter->save();
        painter->setClipRect(QRect());
        drawSource(painter);
        painter->restore();
        proxy->compose(painter);
    }

private:
    SparseProxy *proxy;
};

int areaOf(const QRect &cells)
{
    return cells.width() * cells.height();
}

QRect dotsOf(const QRect &cells)
{
    return {cells.x() * cell.width(), cells.y() * cell.height(), cells.width() * cell.width(),
            cells.height() * cell.height()};
}

QRect cellsOf(const QRect &dots)
{
    return {QPoint(dots.left() / cell.width(), dots.top() / cell.height()),
            QPoint(dots.right() / cell.width(), dots.bottom() / cell.height())};
}
} // namespace

SparseProxy::SparseProxy(QWidget *widget)
    : picture(Look::screen, QImage::Format_ARGB32_Premultiplied)
{
    setWidget(widget);
    // What the scene keeps has one dot a cell, and so tells paint() which of them have changed.
    setCacheMode(ItemCoordinateCache, {columns, rows});
    setGraphicsEffect(new Composer(this));
}

void SparseProxy::compose(QPainter *painter) const
{
    const QRect seen = seenPart();
    for (const QRect &piece : pieces) {
        const QRect part = piece & seen;
        if (!part.isEmpty())
            painter->drawImage(part.topLeft(), picture, part);
    }
}

void SparseProxy::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    QRegion changed = picture.rect();
    if (painter->hasClipping())
        changed &= painter->clipRegion();
    for (const QRect &part : changed) {
        uchar *first = picture.scanLine(part.top()) + part.left() * qsizetype(sizeof(QRgb));
        QImage(first, part.width(), part.height(), picture.bytesPerLine(), picture.format())
            .fill(0);
    }
    // Its own ground is transparent.
    widget()->render(&picture, changed.boundingRect().topLeft(), changed, QWidget::DrawChildren);

    const auto before = drawnCells;
    for (const QRect &part : changed)
        look(cellsOf(part));
    if (drawnCells == before)
        return;
    pieces.clear();
    cut({0, 0, columns, rows});
}

void SparseProxy::look(const QRect &cells)
{
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        quint64 &bits = drawnCells[std::size_t(row)];
        for (int column = cells.left(); column <= cells.right(); ++column) {
            const quint64 bit = quint64(1) << column;
            bits = isDrawn(dotsOf({column, row, 1, 1})) ? bits | bit : bits & ~bit;
        }
    }
}

bool SparseProxy::isDrawn(const QRect &dots) const
{
    for (int y = dots.top(); y <= dots.bottom(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y)) + dots.left();
        if (std::accumulate(line, line + dots.width(), QRgb(0), std::bit_or()) != 0)
            return true;
    }
    return false;
}

QRect SparseProxy::drawnWithin(const QRect &cells) const
{
    const quint64 wanted = ((quint64(1) << cells.width()) - 1) << cells.left();
    quint64 found = 0;
    QRect box;
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        const quint64 bits = drawnCells[std::size_t(row)] & wanted;
        if (bits && !found)
            box.setTop(row);
        if (bits)
            box.setBottom(row);
        found |= bits;
    }
    if (found) {
        box.setLeft(std::countr_zero(found));
        box.setRight(int(std::bit_width(found)) - 1);
    }
    return box;
}

void SparseProxy::cut(const QRect &cells)
{
    const QRect box = drawnWithin(cells);
    if (box.isEmpty())
        return;
    int least = areaOf(box) - cellsOfPiece;
    std::pair<QRect, QRect> halves;
    const auto consider = [&](const QRect &first, const QRect &second) {
        const int area = areaOf(drawnWithin(first)) + areaOf(drawnWithin(second));
        if (area >= least)
            return;
        least = area;
        halves = {first, second};
    };
    // Between lines that are alike no cut is better than beside them.
    quint64 steps = 0;
    for (const quint64 bits : drawnCells)
        steps |= bits ^ (bits >> 1);
    const quint64 *line = &drawnCells[std::size_t(box.top())];
    for (int row = box.top(); row < box.bottom(); ++row, ++line) {
        if (line[0] == line[1])
            continue;
        consider({box.topLeft(), QPoint(box.right(), row)},
                 {QPoint(box.left(), row + 1), box.bottomRight()});
    }
    for (int column = box.left(); column < box.right(); ++column) {
        if ((steps >> column & 1) == 0)
            continue;
        consider({box.topLeft(), QPoint(column, box.bottom())},
                 {QPoint(column + 1, box.top()), box.bottomRight()});
    }
    if (halves.first.isEmpty()) {
        pieces.append(dotsOf(box));
        return;
    }
    cut(halves.first);
    cut(halves.second);
}
