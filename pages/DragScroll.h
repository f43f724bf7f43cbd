#pragma once

#include <QPointer>
#include <QPropertyAnimation>

class QAbstractScrollArea;
class ScrolledPicture;

/// Scrolls a list by dragging a finger over it, with a glide of 500 ms behind the finger.
///
/// Every move scrolls by the whole distance from the point of the press, so that the list gains
/// speed the longer the finger stays away from where it went down: the feel of all lists of this
/// device. GUI thread.
class DragScroll : public QPropertyAnimation
{
    Q_OBJECT

public:
    /// Moves the vertical scroll bar of @p scrolled. Owned by @p parent.
    DragScroll(QAbstractScrollArea *scrolled, QObject *parent);

    /// Serves the event filter of whoever watches @p touched, the viewport or the content that
    /// scrolls in it. Tells whether @p event was a press, a move or a release; nothing else is
    /// followed.
    bool follow(QObject *touched, QEvent *event);

protected:
    void updateCurrentValue(const QVariant &value) override;

private:
    void glide(int y);

    QAbstractScrollArea *area;
    QPointer<ScrolledPicture> picture;
    int pressY = 0;
};
