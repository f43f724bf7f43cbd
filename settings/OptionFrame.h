#pragma once

#include <QFrame>
#include <QPoint>
#include <QTimer>

/// Reports taps on itself as a whole: the tile of the settings menu and of the main screen.
///
/// Presses and releases go on to the parent as well, so that a list scrolls when a drag starts on a
/// tile. GUI thread.
class OptionFrame : public QFrame
{
    Q_OBJECT

public:
    explicit OptionFrame(QWidget *parent = nullptr);

signals:
    /// Tells of a tap: released within a second and less than 100 px from the press on both axes.
    void clicked();

public slots:
    /// Takes the press for too long to be a tap.
    void change_status();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    // On the screen: a tile that scrolls away under the finger takes its own coordinates with it.
    QPoint pressPosition;
    QPoint releasePosition;
    bool pressed = false;
    // Restarted by every press: with one single-shot per press, the timer of a first tap would
    // spoil a second one shortly after it.
    QTimer holdTimer{this};
};
