#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// The frame of the PM2.5 sensor: 60 bytes that start with 0x5A 0xA5, carry the value in µg/m³ as
/// an unsigned 32-bit number at offset 16, least significant byte first, and end with the checksum,
/// high byte first. Thread-safe.

/// The length of a frame in bytes.
inline constexpr qsizetype pm25FrameLength = 60;

/// Tells whether @p bytes have the length and the first two bytes of a frame.
bool isPm25Frame(QByteArrayView bytes);

/// Computes the checksum of @p frame as the sensor does: a 16-bit sum over the 14 groups of four
/// bytes from offset 0 to 55, each adding byte 0 + byte 1 + 256 * byte 2. The fourth byte of each
/// group, and bytes 56 and 57, are not summed. 0 for anything shorter than a frame.
quint16 pm25Checksum(QByteArrayView frame);

/// Decodes @p frame: the PM2.5 value in µg/m³, PM25_ERROR_DATA where the checksum does not match
/// or the frame is missing or too short. Writes the value or the computed sum to the debug output.
int PM2_5_dataHandle(QByteArray *frame);
