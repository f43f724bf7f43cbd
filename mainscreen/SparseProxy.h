#pragma once

#include <QGraphicsProxyWidget>
#include <QImage>
#include <QList>
#include <array>

/// Embeds a widget of the screen's size of which little is drawn: keeps its picture, and composes
/// only those pieces of it that show anything. GUI thread.
class SparseProxy : public QGraphicsProxyWidget
{
public:
    /// Takes over @p widget.
    explicit SparseProxy(QWidget *widget);

    /// Composes what seenPart() has of the picture.
    void compose(QPainter *painter) const;

    /// Renews the picture where the widget has changed, and paints nothing.
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *on) override;

protected:
    /// Tells what of the widget is shown.
    virtual QRect seenPart() const { return picture.rect(); }

private:
    void look(const QRect &cells);
    bool isDrawn(const QRect &dots) const;
    QRect drawnWithin(const QRect &cells) const;
    void cut(const QRect &cells);

    static constexpr int columns = 61;
    static constexpr int rows = 30;

    QImage picture;
    std::array<quint64, std::size_t(rows)> drawnCells{}; ///< one bit a cell, from the left
    QList<QRect> pieces;
};
