#pragma once

#include <QPropertyAnimation>

/// Raises @p holder above the page now showing and slides it in from the right edge of the screen:
/// 400 ms, ease-in. Connect to finished() to make it the current page.
///
/// On its way a picture of it is shown, taken here, until it arrives or a finger touches the
/// screen; it is opaque, on the ground of all pages, and fills the screen.
///
/// The animation has no parent and outlives its run, one per opening; it goes with @p holder.
QPropertyAnimation *slideIn(QWidget *holder);
