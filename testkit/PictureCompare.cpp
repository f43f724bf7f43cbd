#include "testkit/PictureCompare.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <limits>

namespace {
// Less than the faintest thing on any page, the grid of the chart.
constexpr int channelTolerance = 8;
// What a few layers drawn over one another lose where each is rounded to five bits.
constexpr int coarseTolerance = 24;
// Less than the smallest thing on any page leaves when it moves by two pixels, a digit of the
// chart.
constexpr int strayPixels = 12;

// Whether color could stand at (x, y) if the edges there fell on the pixels a little differently:
// each channel lies between the lowest and the highest around it, or half their distance beyond.
bool isAmong(QRgb color, const QImage &image, int x, int y, int tolerance)
{
    for (const int shift : {0, 8, 16}) {
        const auto channel = [shift](QRgb pixel) { return int(pixel >> shift & 0xFF); };
        int low = channel(image.pixel(x, y));
        int high = low;
        for (int row = std::max(0, y - 1); row <= std::min(image.height() - 1, y + 1); ++row) {
            for (int column = std::max(0, x - 1); column <= std::min(image.width() - 1, x + 1);
                 ++column) {
                low = std::min(low, channel(image.pixel(column, row)));
                high = std::max(high, channel(image.pixel(column, row)));
            }
        }
        const int margin = tolerance + (high - low) / 2;
        if (channel(color) < low - margin || channel(color) > high + margin)
            return false;
    }
    return true;
}

QString saved(const QImage &image, const QFileInfo &file)
{
    QDir().mkpath(file.path());
    if (!image.save(file.filePath()))
        return file.filePath() + QStringLiteral(" (cannot be written)");
    return file.filePath();
}

// Dims marks and draws those pixels in red. The highest int where there is nothing to compare.
int differentPixels(const QImage &picture, const QImage &reference, QImage *marks)
{
    const QImage actual = picture.convertToFormat(QImage::Format_RGB32);
    const QImage expected = reference.convertToFormat(QImage::Format_RGB32);
    *marks = actual.copy();
    if (actual.isNull() || actual.size() != expected.size())
        return std::numeric_limits<int>::max();

    const int tolerance = picture.depth() == 16 ? coarseTolerance : channelTolerance;
    int different = 0;
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            const QRgb here = actual.pixel(x, y);
            const QRgb there = expected.pixel(x, y);
            const bool agrees = here == there || (isAmong(here, expected, x, y, tolerance) &&
                                                  isAmong(there, actual, x, y, tolerance));
            different += agrees ? 0 : 1;
            marks->setPixel(x, y, agrees ? QColor(here).darker(300).rgb() : qRgb(255, 0, 0));
        }
    }
    return different;
}
} // namespace

QString pictureDifference(const QImage &picture, const QString &folder, const QString &fileName)
{
    const QFileInfo reference(folder, fileName);
    if (qEnvironmentVariableIntValue("ZELL_RENEW_PICTURES") == 1) {
        saved(picture, reference);
        return {};
    }

    QImage marks;
    const int different = differentPixels(picture, QImage(reference.filePath()), &marks);
    if (different <= strayPixels)
        return {};
    const QDir output(QCoreApplication::applicationDirPath() + QStringLiteral("/pictures"));
    const QString name = reference.completeBaseName();
    const bool comparable = different < std::numeric_limits<int>::max();
    return QStringLiteral("%1 %2; see %3 and %4")
        .arg(comparable ? QStringLiteral("%1 pixels differ from").arg(different)
                        : QStringLiteral("there is no picture of this size:"),
             reference.filePath(),
             saved(picture, QFileInfo(output, name + QStringLiteral("-actual.png"))),
             saved(marks, QFileInfo(output, name + QStringLiteral("-difference.png"))));
}
