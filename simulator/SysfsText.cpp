#include "simulator/SysfsText.h"

#include <QString>
#include <algorithm>

namespace simulator {
namespace {
constexpr int lowestThousandths = -9999;
constexpr int highestThousandths = 99999;
constexpr qsizetype hugeSize = 1 << 20;
constexpr int binarySize = 64;

QByteArray field(double value)
{
    const double thousandths =
        std::clamp(value * 1000, double(lowestThousandths), double(highestThousandths));
    return QString::asprintf("%05d", qRound(thousandths)).toLatin1();
}
} // namespace

QByteArray climateText(double celsius, double percent)
{
    return "temp = " + field(celsius) + ", humidity = " + field(percent);
}

QByteArray lightText(double level)
{
    return QByteArray::number(std::max(0, qRound(level)));
}

QByteArray brokenText(TextFault fault, const QByteArray &good, QRandomGenerator &random)
{
    QByteArray text = good;
    switch (fault) {
    case TextFault::None:
        break;
    case TextFault::Empty:
        return {};
    case TextFault::Short:
        text.truncate(good.size() / 3);
        break;
    case TextFault::Letters:
        std::replace_if(
            text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; }, 'x');
        break;
    case TextFault::Binary:
        text.resize(binarySize);
        std::generate(text.begin(), text.end(), [&] { return char(random.bounded(256)); });
        break;
    case TextFault::Huge:
        text = good.repeated(hugeSize / good.size());
        break;
    }
    return text;
}

} // namespace simulator
