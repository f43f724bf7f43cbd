#pragma once

#include <QByteArray>
#include <QRandomGenerator>

namespace simulator {

/// What is wrong with the text of a sysfs sensor file.
enum class TextFault { None, Empty, Short, Letters, Binary, Huge };

/// Writes the temperature and humidity file: "temp = 23456, humidity = 45678", in thousandths of @p
/// celsius and of @p percent.
///
/// Each field keeps its five columns (7 and 25): short numbers are filled up with zeros behind the
/// sign, and what needs six characters stands at the limit, -9.999 or 99.999.
QByteArray climateText(double celsius, double percent);

/// Writes the light sensor file: the level as a whole number, 0 at least.
QByteArray lightText(double level);

/// Puts @p fault into @p good.
QByteArray brokenText(TextFault fault, const QByteArray &good, QRandomGenerator &random);

} // namespace simulator
