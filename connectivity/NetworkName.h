#pragma once

#include <QString>

class QFontMetrics;
class QLabel;

/// The name of a network on the screen. It comes from the air: it may be of any length and look
/// like anything, so it is cut where it does not fit and never read as rich text. GUI thread.

/// Cuts @p name to @p width px.
QString elidedName(const QString &name, const QFontMetrics &metrics, int width);

/// Shows @p name in @p title, cut to its width.
void showName(const QString &name, QLabel *title);
