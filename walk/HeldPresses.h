#pragma once

#include "walk/Walk.h"

/// Presses and holds one after another everything that reacts within reach of @p walk, shows @p
/// look its name and the screen meanwhile, and takes the touch back so that nothing is chosen.
///
/// Returns a line for each that has not answered on the screen within one turn of the event loop,
/// and for each that has not let go.
QStringList holdEverything(
    const Walk &walk,
    const std::function<void(const QString &, const QImage &)> &look = [](auto &&...) {});
