#pragma once

#include <QObject>
#include <QTimer>
#include <QWidget>

/// Tells the service manager how the program does: that it is ready, once the first frame of its
/// window is painted, and from then on a beat out of the event loop, so that a frozen screen is
/// noticed. Silent where no service manager listens. GUI thread.
class Watchdog : public QObject
{
    Q_OBJECT

public:
    /// Watches @p screen, which has not been shown yet and lives longer.
    explicit Watchdog(QWidget &screen);

    /// Waits for the first frame; not to be called.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void start();

    QWidget &window;
    QTimer beat;
};
