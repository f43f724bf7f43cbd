#pragma once

#include <QByteArray>
#include <QList>
#include <QRandomGenerator>

namespace simulator {

/// What is wrong with a transmission of the particle sensor.
enum class FrameFault { None, BadChecksum, BadHeader, Split, Merged, Short, Long, Noise };

/// Length of a frame in bytes.
inline constexpr qsizetype FRAME_SIZE = 60;

/// The sensor's own sum over @p frame, which must be at least FRAME_SIZE long: of each of the
/// 14 groups of four bytes up to offset 55 the first two bytes count once, the third 256 times and
/// the fourth not at all, in 16 bits.
quint16 sensorChecksum(const QByteArray &frame);

/// A good frame: "Z" and 0xA5, @p particles (µg/m³) in 32 bits little-endian at offset 16, the
/// checksum high byte first at offset 58. The bytes between are drawn from @p random.
QByteArray sensorFrame(quint32 particles, QRandomGenerator &random);

/// What travels on the line for one reading, as bursts with a pause between them.
QList<QByteArray> sensorBursts(FrameFault fault, quint32 particles, QRandomGenerator &random);

} // namespace simulator
