#pragma once

#include <QTimer>
#include <QWidget>

/// Darkens the screen until it is touched: black over the whole window, and the backlight at its
/// lowest level. What the program does goes on beneath. The touch that wakes the screen does
/// nothing else, nor does a second one that follows at once; neither reaches what lies below. GUI
/// thread.
class ScreenOff : public QWidget
{
    Q_OBJECT

public:
    /// Covers @p window, which owns it, from darken() on.
    explicit ScreenOff(QWidget *window);
    /// Leaves no dark display behind.
    ~ScreenOff() override;

public slots:
    void darken();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void setDark(bool dark);

    bool isDark = false;
    QTimer awake{this}; ///< runs out when a tap is no second one any more
};
