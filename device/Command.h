#pragma once

#include <QString>
#include <chrono>

/// Other programs of the device: the one way to run them.

enum class CommandEnd { Succeeded, Failed, HitLimit };

/// What becomes of a command that has not come back within its time, and of all that it started.
/// EndLater gives it 750 ms more, which nobody waits for: for threads with an event loop.
enum class AtLimit { End, EndLater, LeaveRunning };

/// Runs @p command in a shell and waits for it, @p limit at the most, and no longer than this
/// program is to run. Whatever keeps it from succeeding is told by one debug line. Thread-safe.
CommandEnd runCommand(const QString &command, std::chrono::milliseconds limit,
                      AtLimit atLimit = AtLimit::End);
