#pragma once

/// Drives the display's backlight with the device's command, which takes the level as its only
/// argument.
///
/// Waits for the command, so that levels reach the device in the order of the calls, but a second
/// at the most: then it is ended, and the device is left alone for a while before the last level
/// asked for meanwhile goes out. A command that fails leaves one debug line. GUI thread.
void setBacklight(int level);

/// The last level that the command took without failing; -1 before the first.
int backlightLevel();
