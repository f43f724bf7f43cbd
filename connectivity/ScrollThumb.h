#pragma once

class QAbstractScrollArea;
class QScrollBar;

/// Lets @p thumb, which stands beside @p list, show how far the list has been scrolled, whenever a
/// row is out of sight. It is too narrow for a finger, which goes through it. GUI thread; both must
/// live equally long.
void showScroll(QAbstractScrollArea *list, QScrollBar *thumb);
