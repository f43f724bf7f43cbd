#pragma once

#include <QAnimationDriver>
#include <QList>

class QTimeLine;
class QWidget;

/// Stands in for the time of every animation while it lives: they move on by one frame at step()
/// and rest in between, so that each run sees the same frames.
class FrameClock : public QAnimationDriver
{
public:
    /// Takes over the time lines below @p window, too.
    explicit FrameClock(QWidget *window);
    ~FrameClock() override;

    /// Lets 16 ms pass.
    void step();
    bool isBusy() const;

    void start() override;
    qint64 elapsed() const override { return milliseconds; }

private:
    QList<QTimeLine *> timeLines;
    qint64 milliseconds = 0;
};
