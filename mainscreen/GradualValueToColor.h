#pragma once

#include <QMap>
#include <QString>
#include <utility>

/// A colour in three channels of 0 to 255 each.
struct RGB
{
    int r = 0;
    int g = 0;
    int b = 0;
};

/// Maps a number from 0 to 1 to a colour: linear interpolation between colour stops.
///
/// A scale without a stop at 0 or at 1 blends towards black at that end. Any thread, one at a time.
class GradualValueToColor
{
public:
    /// Sets the stop at 0; @p color is 0xRRGGBB.
    void setStartColor(int color) { setColorAt(0.0F, color); }
    /// Sets the stop at 1; @p color is 0xRRGGBB.
    void setEndColor(int color) { setColorAt(1.0F, color); }
    /// Sets the stop at @p position, 0 to 1, in place of one already there; @p color is 0xRRGGBB.
    void setColorAt(float position, int color);

    /// Splits @p color, 0xRRGGBB, into its three bytes.
    static void parseHexToRGB(int color, int &r, int &g, int &b);

    /// Names the colour at @p value: "#" and six lower-case hexadecimal digits, fewer when red and
    /// green are both below 0x10. The blend goes on outside 0 to 1, where channels run into one
    /// another. NaN counts as 0.
    QString colorAt(float value);

private:
    QMap<float, RGB> colors;
};

/// The neighbouring keys of @p stops with lower < @p value <= upper. (0, 1) when @p value is not
/// between 0 and 1, when there are fewer than two stops, and outside of all stops.
std::pair<float, float> findRangRgb(float value, const QMap<float, RGB> &stops);
