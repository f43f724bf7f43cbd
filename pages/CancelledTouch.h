#pragma once

#include <QObject>

class QMouseEvent;

/// Takes back what a finger has begun where the panel cancels its touch.
///
/// Qt lifts the mouse that stands for the finger where it was last, which would be a tap or the end
/// of a swipe. Here it is lifted where nothing is: buttons, tiles and lists choose nothing then,
/// and keys and the chart let go. Watches all windows of the program. GUI thread.
class CancelledTouch : public QObject
{
    Q_OBJECT

public:
    /// Needs a QApplication.
    explicit CancelledTouch(QObject *parent);

    /// Tells whether @p event, of any widget, lifts a finger whose touch was cancelled.
    static bool lifts(const QMouseEvent *event);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool cancelled = false;
};
