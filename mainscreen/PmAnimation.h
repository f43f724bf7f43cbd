#pragma once

#include <QFrame>
#include <QRandomGenerator>

class MovingParts;
class QAnimationGroup;
class QLabel;
class QParallelAnimationGroup;
class QPropertyAnimation;

/// Shows that a PM2.5 measurement runs: a bar sweeps over the sensor while dust drifts past it.
/// Loops until it is stopped. GUI thread.
class PmAnimation : public QFrame
{
    Q_OBJECT

public:
    explicit PmAnimation(QWidget *parent = nullptr);

    /// Builds the picture and the animations. Called once. The paths of the granules are the same
    /// after every start of the program.
    void init();

    void startAnimation();
    /// Halts a running animation while it is not @p inSight.
    void setInSight(bool inSight);
    /// Stops the animation where it is and hides the widget.
    void stopAnimation();

signals:
    /// Never emitted: the animation has no end of its own.
    void Finish();

private slots:
    void changedScanning();
    void repaintUI(const QVariant &value);
    void restart();

private:
    QRect getScanningStartRectF() const;
    QRect getScanningEndRectF() const;
    int getRandOfY();
    QPoint getRandOfRectF();
    QPoint getGranuleStartPoint();
    QPoint getGranuleEndPoint();
    QPropertyAnimation *getAnimation();
    QAnimationGroup *newSweeps();
    QAnimationGroup *initGranuleGroup();

    QFrame *sensor = nullptr;
    QLabel *bar = nullptr;
    int scanCounter = 0;
    MovingParts *movingParts;
    QParallelAnimationGroup *whole;
    QRandomGenerator random;
};
