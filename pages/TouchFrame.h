#pragma once

#include <QFrame>
#include <QPoint>
#include <QTimer>

class QAbstractButton;

/// Reports taps on itself as a whole, and lights up under the finger: a row of a card. OptionFrame,
/// the tile, derives from it.
///
/// A row clicks the one button in it that is enabled and takes presses, wherever it is tapped; what
/// else looks like a button there lets presses through. The light is shown within the press, on a
/// frame that has a plate and such a button, or somebody who listens to clicked(). Presses and
/// releases go on to the parent as well, so that a list scrolls when a drag starts on a frame. GUI
/// thread.
class TouchFrame : public QFrame
{
    Q_OBJECT
    /// The corners of the plate, in px: the style sheet knows it. 0 is no plate, thus no light.
    Q_PROPERTY(int plateRadius MEMBER plateRadius)
    Q_PROPERTY(bool still MEMBER still)

public:
    explicit TouchFrame(QWidget *parent = nullptr);

    /// Keeps the frame dark under the finger while a tap on it leads nowhere.
    void setStill(bool on) { still = on; }

    /// Takes the presses on its buttons.
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// Tells of a tap: released within a second and less than 100 px from the press on both axes.
    void clicked();

public slots:
    /// Takes the press for too long to be a tap.
    void change_status();

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    /// Paints the light upon the plate of the frame; for a row, upon its card and within its edge.
    virtual void paintLight(QPainter &painter, int radius) const;

private:
    QAbstractButton *ownButton() const;
    bool isNear() const;
    void setLit(bool on);

    // On the screen: a frame that scrolls away under the finger takes its own coordinates with it.
    QPoint pressPosition;
    QPoint releasePosition;
    bool pressed = false;
    bool lit = false;
    bool still = false;
    int plateRadius = 0;
    // Restarted by every press: with one single-shot per press, the timer of a first tap would
    // spoil a second one shortly after it.
    QTimer holdTimer{this};
};
