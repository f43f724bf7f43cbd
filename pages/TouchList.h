#pragma once

#include <QObject>

class DragScroll;
class QAbstractItemView;
class RowLight;

/// Makes a list follow the finger: a drag scrolls it, a tap selects the row under it, which is lit
/// meanwhile.
///
/// The view itself selects on press, so that every drag would choose the row it happens to begin
/// on; here the choice falls when the finger is lifted near the place where it went down. The view
/// gets none of these events any more; a double tap is two taps. The selection is made within the
/// release, and its receivers may delete the view. Owned by the view. GUI thread.
class TouchList : public QObject
{
    Q_OBJECT

public:
    /// Watches @p listView, which should scroll per pixel.
    explicit TouchList(QAbstractItemView *listView);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QAbstractItemView *view;
    DragScroll *scroll;
    RowLight *light;
};
