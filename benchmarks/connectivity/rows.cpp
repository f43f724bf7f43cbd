#include "benchmarks/support/Row.h"
#include "benchmarks/support/Screen.h"

#include <QLineEdit>

namespace {
constexpr QPoint key(427, 326);

// A page with a keyboard, and the longest password of a network: a key must not cost more for it.
struct Typist
{
    Typist()
    {
        for (const auto *button : {"button_option", "option_setLocation", "button_search"})
            screen.open(QLatin1String(button));
        line = Screen::visible<QLineEdit>();
        screen.click(key);
    }

    void restore() const { line->setText(QString(63, QLatin1Char('x'))); }

    Screen screen;
    QLineEdit *line = nullptr;
};

// From the finger on the glass to the key and its enlarged label on the screen.
void keyPress(Row &row)
{
    const Typist typist;
    row.turns([&] { typist.screen.press(key); },
              [&] {
                  typist.screen.lift(key);
                  typist.restore();
              });
}

// From lifting the finger to the letter on the screen.
void keyRelease(Row &row)
{
    const Typist typist;
    row.turns([&] { typist.screen.lift(key); },
              [&] {
                  typist.restore();
                  typist.screen.press(key);
              });
}

const Rows rows({
    {.name = "key press", .measure = keyPress},
    {.name = "key release", .measure = keyRelease},
});
} // namespace
