#pragma once

#include <QByteArray>
#include <QList>
#include <QRandomGenerator>

namespace simulator {

/// What is wrong with a transmission of the particle sensor.
enum class FrameFault { None, BadChecksum, BadHeader, Split, Merged, Short, Long, Noise };

/// Length of a frame in bytes.
inline constexpr qsizetype frameSize = 60;

/// Makes a good frame: "Z" and 0xA5, @p particles (µg/m³) in 32 bits little-endian at offset 16,
/// the checksum high byte first at offset 58. The bytes between are drawn from @p random.
QByteArray sensorFrame(quint32 particles, QRandomGenerator &random);

/// Makes what travels on the line for one reading, as bursts with a pause between them.
QList<QByteArray> sensorBursts(FrameFault fault, quint32 particles, QRandomGenerator &random);

} // namespace simulator
