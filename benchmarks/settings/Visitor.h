#pragma once

#include "settings/OptionPage.h"

#include <vector>

/// A visit to a page by taps from the menu, the last of which opens it, and the way back. Where
/// that leads back to the menu the pages in between are visited anew every time.
struct Way
{
    const char *name;
    std::vector<const char *> taps;
    const char *back = "button_back";
    bool hasWheels = false;
    bool opensAtOnce = true; ///< false: the last tap starts something that takes its time
};

/// Opens the page at the end of a way again and again, and sees each to its finished picture.
class Visitor
{
public:
    explicit Visitor(Way taken);

    /// Makes all taps up to the last one, from where the last visit has led back to.
    void approach();
    void open() { tapNewest(way.taps.back()); }
    void leave();

    /// Lets the page that leads to wheels load what they share, which is done once in the life of
    /// the program and belongs to no visit.
    void awaitSharedWheels();

private:
    void settle();
    void tapNewest(const char *name);
    bool wheelsAreOnTheScreen() const;
    bool rowIsOnTheScreen(const QWidget &wheel) const;

    Way way;
    std::size_t reached = 0;
    OptionPage menu;
};
