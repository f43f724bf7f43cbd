#pragma once

#include "benchmarks/support/FrameClock.h"
#include "walk/Walk.h"

#include <QApplication>

class Row;

/// The real main window on a simulated device, under a finger whose frames follow one another as
/// fast as they are done.
class Screen : public Walk
{
public:
    Screen();

    /// The mouse that Qt makes of a finger. What is measured is the product: between two touches
    /// the finger of the tests waits a millisecond.
    void press(const QPoint &position) const;
    void move(const QPoint &position) const;
    void lift(const QPoint &position) const;
    void click(const QPoint &position) const;

    /// Lets the animations move on by one frame.
    void step() { clock.step(); }
    bool isBusy() const { return clock.isBusy(); }
    /// Lets the animations run to their ends.
    void finish();

    /// Taps @p button and lets the animations run.
    void open(const QString &button);

    /// Returns the widget of class @p Widget that is visible; there must be one.
    template <class Widget>
    static Widget *visible()
    {
        for (QWidget *widget : QApplication::allWidgets()) {
            auto *wanted = qobject_cast<Widget *>(widget);
            if (wanted && wanted->isVisible())
                return wanted;
        }
        qFatal("no %s is visible", Widget::staticMetaObject.className());
    }

private:
    FrameClock clock{screen()};
};

/// Measures every step of the page that slides in when @p button is tapped, but for what the tap
/// itself costs: on its first visit, in a fresh window each time, or after that.
void firstSlideIn(Row &row, const QString &button);
void laterSlideIn(Row &row, const QString &button);
