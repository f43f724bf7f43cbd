#pragma once

#include "device/Backlight.h"

#include <optional>

/// The levels of the backlight as the brightness page offers them. Pure.
namespace BacklightLevel {

constexpr int lowest = Backlight::lowest;
constexpr int highest = 257;
constexpr int atOpening = Backlight::atStart;

/// How the groove of the slider is drawn; only its pictures differ.
enum class Groove { Low, Normal, Full };

/// Tells where the slider goes back to from @p level at one of its ends; nothing for all other
/// levels.
std::optional<int> backFromEnd(int level);

/// Chooses the groove from @p level on. The few levels above the lower end leave it as it is.
std::optional<Groove> grooveFrom(int level);

} // namespace BacklightLevel
