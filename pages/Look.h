#pragma once

#include <QColor>
#include <QSize>

/// What all pages look alike in, for whoever paints or places by hand. For everything else the same
/// colours stand in resource/qss/ZellQt.qss.
namespace Look {
constexpr QSize screen(854, 480);

/// State and touch: titles, values, whatever is chosen.
constexpr QColor accent(0x00, 0xe5, 0xff);
/// Upon a plate under the finger, and its edge.
constexpr QColor light(0x00, 0xe5, 0xff, 33);
constexpr QColor lightEdge(0x00, 0xe5, 0xff, 128);
/// Of every page behind the main screen.
constexpr QColor ground(0x21, 0x21, 0x21);
/// Texts on accent and on white.
constexpr QColor ink = ground;
} // namespace Look
