#pragma once

#include <chrono>

/// Closes all windows and runs the device's restart script, which stops this program and starts it
/// again.
///
/// Waits for the script, @p limit at the most. Where it cannot be run, fails or does not
/// return, that is one debug line, and the windows come back: a device without a screen would be of
/// no use. GUI thread.
void restartProgram(std::chrono::milliseconds limit = std::chrono::seconds(5));
