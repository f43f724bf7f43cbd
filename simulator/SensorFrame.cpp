#include "simulator/SensorFrame.h"

#include <QtEndian>

namespace simulator {
namespace {
constexpr qsizetype particleOffset = 16;
constexpr qsizetype summedBytes = 56;
constexpr qsizetype checksumOffset = 58;

QByteArray noise(qsizetype size, QRandomGenerator &random)
{
    QByteArray bytes(size, '\0');
    for (char &byte : bytes)
        byte = char(random.bounded(256));
    return bytes;
}

// Of each of the 14 groups of four bytes the first two count once, the third 256 times and the
// fourth not at all.
quint16 sensorChecksum(const QByteArray &frame)
{
    const auto *byte = reinterpret_cast<const uchar *>(frame.constData());
    quint16 sum = 0;
    for (qsizetype i = 0; i < summedBytes; i += 4)
        sum = quint16(sum + byte[i] + byte[i + 1] + 256 * byte[i + 2]);
    return sum;
}
} // namespace

QByteArray sensorFrame(quint32 particles, QRandomGenerator &random)
{
    QByteArray frame = noise(frameSize, random);
    frame[0] = 'Z';
    frame[1] = char(0xA5);
    qToLittleEndian(particles, frame.data() + particleOffset);
    qToBigEndian(sensorChecksum(frame), frame.data() + checksumOffset);
    return frame;
}

QList<QByteArray> sensorBursts(FrameFault fault, quint32 particles, QRandomGenerator &random)
{
    QByteArray frame = sensorFrame(particles, random);
    switch (fault) {
    case FrameFault::None:
        break;
    case FrameFault::BadChecksum:
        frame.back() = char(frame.back() ^ 1);
        break;
    case FrameFault::BadHeader:
        frame[1] = 'Z';
        break;
    case FrameFault::Split:
        return {frame.first(frameSize / 2), frame.sliced(frameSize / 2)};
    case FrameFault::Merged:
        return {frame + sensorFrame(particles, random)};
    case FrameFault::Short:
        frame.chop(1);
        break;
    case FrameFault::Long:
        frame.append('Z');
        break;
    case FrameFault::Noise:
        return {noise(frameSize / 3, random)};
    }
    return {frame};
}

} // namespace simulator
