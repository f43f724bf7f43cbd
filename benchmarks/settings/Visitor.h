#pragma once

#include "benchmarks/support/Screen.h"

#include <vector>

/// A visit to a page by taps from the settings menu, the last of which opens it, and the way back.
/// Where that leads back to the menu the pages in between are visited anew every time.
struct Way
{
    const char *name;
    std::vector<const char *> taps;
    const char *back = "button_back";
    bool hasWheels = false;
    bool opensAtOnce = true; ///< false: the last tap starts something that takes its time
};

/// Opens the page at the end of a way again and again, in the real window.
class Visitor
{
public:
    /// Loads what all wheels share, which is done once in the life of the program.
    explicit Visitor(Way taken);

    /// Makes all taps up to the last one, from where the last visit has led back to.
    void approach();
    /// Makes the last tap.
    void open() const;
    void leave();
    /// Tells whether the current row of every visible wheel is on the screen.
    bool wheelsAreOnTheScreen() const;

private:
    QPoint placeOf(const char *name);
    void tap(const char *name);
    bool rowIsOnTheScreen(const QWidget &wheel) const;

    Way way;
    std::size_t reached = 0;
    Screen screen;
    QPoint last;
};
