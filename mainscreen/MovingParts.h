#pragma once

#include <QList>
#include <QObject>
#include <QPixmap>
#include <QPointer>

class QLabel;

/// Paints a widget of a graphics scene on which pictures move about straight onto the view. By way
/// of the scene each frame has the widget drawn into the cache of its proxy, and the scene composed
/// from there.
///
/// Takes over once nothing but the widget has been painted for some frames, and leaves it to the
/// scene with the first painting beyond it: nothing but the pictures may change within its
/// rectangle alone. Without a scene it does nothing. GUI thread.
class MovingParts : public QObject
{
public:
    explicit MovingParts(QWidget *widget);

    /// Takes care of @p labels, children of the widget, the lowest one first. Called once.
    void watch(const QList<QLabel *> &labels);
    /// Shows that a label has been given another picture.
    void refresh();
    /// Leaves the painting to the scene, before the widget moves or goes.
    void rest();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Part
    {
        QLabel *label = nullptr;
        QRect painted; ///< where it is seen
    };

    bool findView();
    QRect placeOnView() const;
    void takeOver();
    void dropFromCache() const;
    bool paint(const QRegion &region);
    void compose();

    QWidget *stage;
    QList<Part> parts;
    QPointer<QWidget> viewport;
    QRect place;    ///< of the widget on the viewport
    QPixmap ground; ///< what is seen there without the widget
    QPixmap still;  ///< the widget without its parts
    QPixmap joined; ///< the widget
    QPixmap frame;  ///< what is seen there; null while the scene paints
    int calmFrames = 0;
    bool isTaking = false;
};
