#pragma once

#include <QHash>
#include <QImage>
#include <QList>
#include <vector>

class QBrush;

/// Draws dots of one size, each pixel as QPainter draws points with a round pen and antialiasing.
///
/// The outline of a dot costs far more than its pixels, so it is drawn once for each place between
/// two pixels, kept, and laid over the picture wherever a dot has that place. GUI thread.
class DotStamps
{
public:
    /// Draws dots @p diameter pixels wide, an even number.
    explicit DotStamps(int diameter);

    /// Draws a dot at each of @p centers, one after the other, on @p picture, premultiplied with 32
    /// bits a pixel. The y of a center is a whole number; what lies outside is left out.
    void draw(QImage *picture, const QList<QPointF> &centers, const QBrush &brush);

private:
    const uchar *stampAt(double fraction);

    int size;
    int width;
    QHash<double, std::size_t> places;
    std::vector<uchar> stamps;
};
