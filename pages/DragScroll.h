#pragma once

#include <QObject>
#include <QPropertyAnimation>

class QScrollBar;

/// Scrolls a list by dragging a finger over it, with a glide of 500 ms behind the finger.
///
/// Every move scrolls by the whole distance from the point of the press, so that the list gains
/// speed the longer the finger stays away from where it went down: the feel of all lists of this
/// device. The watched widget may be the viewport or the content that scrolls inside it, and still
/// gets every event. GUI thread.
class DragScroll : public QObject
{
    Q_OBJECT

public:
    /// Watches the mouse on @p touched and moves @p moved. Owned by @p parent.
    DragScroll(QWidget *touched, QScrollBar *moved, QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void glide(int y);

    QObject *surface;
    QScrollBar *scrollBar;
    QPropertyAnimation animation;
    int pressY = 0;
};
