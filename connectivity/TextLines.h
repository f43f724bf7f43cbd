#pragma once

#include <QString>

/// Rich text that shows the lines of the plain @p text @p pitch pixels apart; a label has no line
/// spacing of its own.
QString linesApart(const QString &text, int pitch);
