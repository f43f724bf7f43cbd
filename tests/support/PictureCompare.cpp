#include "tests/support/PictureCompare.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <cstdlib>
#include <limits>

namespace {
constexpr int channelTolerance = 24;
constexpr int strayPixels = 24;

bool alike(QRgb first, QRgb second)
{
    return std::abs(qRed(first) - qRed(second)) <= channelTolerance &&
           std::abs(qGreen(first) - qGreen(second)) <= channelTolerance &&
           std::abs(qBlue(first) - qBlue(second)) <= channelTolerance;
}

// Whether every channel of color lies between the darkest and the brightest around (x, y).
bool isAmong(QRgb color, const QImage &image, int x, int y)
{
    QRgb darkest = image.pixel(x, y);
    QRgb brightest = darkest;
    for (int row = std::max(0, y - 1); row <= std::min(image.height() - 1, y + 1); ++row) {
        for (int column = std::max(0, x - 1); column <= std::min(image.width() - 1, x + 1);
             ++column) {
            const QRgb other = image.pixel(column, row);
            darkest =
                qRgb(std::min(qRed(darkest), qRed(other)), std::min(qGreen(darkest), qGreen(other)),
                     std::min(qBlue(darkest), qBlue(other)));
            brightest = qRgb(std::max(qRed(brightest), qRed(other)),
                             std::max(qGreen(brightest), qGreen(other)),
                             std::max(qBlue(brightest), qBlue(other)));
        }
    }
    const auto within = [](int value, int low, int high) {
        return value >= low - channelTolerance && value <= high + channelTolerance;
    };
    return within(qRed(color), qRed(darkest), qRed(brightest)) &&
           within(qGreen(color), qGreen(darkest), qGreen(brightest)) &&
           within(qBlue(color), qBlue(darkest), qBlue(brightest));
}

QString saved(const QImage &image, const QFileInfo &file)
{
    QDir().mkpath(file.path());
    if (!image.save(file.filePath()))
        return file.filePath() + QStringLiteral(" (cannot be written)");
    return file.filePath();
}
} // namespace

int differentPixels(const QImage &picture, const QImage &reference, QImage *marks)
{
    const QImage actual = picture.convertToFormat(QImage::Format_RGB32);
    const QImage expected = reference.convertToFormat(QImage::Format_RGB32);
    if (marks != nullptr)
        *marks = actual.copy();
    if (actual.isNull() || actual.size() != expected.size())
        return std::numeric_limits<int>::max();

    int different = 0;
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            const QRgb here = actual.pixel(x, y);
            const QRgb there = expected.pixel(x, y);
            const bool agrees = alike(here, there) ||
                                (isAmong(here, expected, x, y) && isAmong(there, actual, x, y));
            different += agrees ? 0 : 1;
            if (marks != nullptr)
                marks->setPixel(x, y, agrees ? QColor(here).darker(300).rgb() : qRgb(255, 0, 0));
        }
    }
    return different;
}

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
    return QStringLiteral("%1 pixels differ from %2; see %3 and %4")
        .arg(QString::number(different), reference.filePath(),
             saved(picture, QFileInfo(output, name + QStringLiteral("-actual.png"))),
             saved(marks, QFileInfo(output, name + QStringLiteral("-difference.png"))));
}
