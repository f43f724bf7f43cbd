#pragma once

class QAbstractScrollArea;
class QScrollBar;

/// Has @p bar, which is vertical, painted as a picture of its thumb: as the style sheet wants it at
/// rest, at a fifth of the price. GUI thread.
void lightenThumb(QScrollBar *bar);

/// Lets @p thumb, which stands beside @p list, show how far the list has been scrolled, whenever a
/// row is out of sight. It is too narrow for a finger, which goes through it. GUI thread; both must
/// live equally long.
void showScroll(QAbstractScrollArea *list, QScrollBar *thumb);
