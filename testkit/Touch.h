#pragma once

#include <QAbstractButton>
#include <QPoint>
#include <QString>
#include <QWidget>

/// A finger on a touch screen, as the window system tells of it; another finger comes and goes
/// while it is down. A test that needs a literal mouse event sends it by itself.

/// Presses and releases at @p position of @p window.
void tapAt(QWidget *window, const QPoint &position);

/// Taps twice at @p position within no time. Other taps are taps, however fast they follow.
void doubleTapAt(QWidget *window, const QPoint &position);

/// Taps the middle of @p widget through its window. For widgets that are not inside a graphics
/// view.
void tap(QWidget *widget);

/// Presses at @p from, moves in @p steps to @p to and releases there.
void drag(QWidget *window, const QPoint &from, const QPoint &to, int steps = 4);

/// Presses at @p position and keeps the finger down. The second half of a double tap where the
/// press before it was less than @p doubleTapTime ms ago.
void pressAt(QWidget *window, const QPoint &position, int doubleTapTime = 0);
void moveTo(QWidget *window, const QPoint &position);
void releaseAt(QWidget *window, const QPoint &position);
/// Lets the panel cancel the touch that was last at @p position.
void cancelAt(QWidget *window, const QPoint &position);

/// Returns the one descendant of @p root named @p objectName that is visible, or null.
QWidget *visibleChild(QWidget *root, const QString &objectName);

/// Returns the one button below @p root that is visible and says @p text, or null.
QAbstractButton *visibleButton(QWidget *root, const QString &text);
