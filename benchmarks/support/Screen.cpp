#include "benchmarks/support/Screen.h"

#include "benchmarks/support/Row.h"

#include <QTest>
#include <QWindow>

namespace {
constexpr int longestAnimation = 100;

void slideIn(Row &row, Screen &screen, const QString &button)
{
    const QPoint place = screen.placeOf(button);
    Row::runLoop([&] { screen.click(place); });
    while (screen.isBusy() && row.isOpen())
        row.add(row.turn([&screen] { screen.step(); }));
}
} // namespace

Screen::Screen()
{
    finish();
}

void Screen::press(const QPoint &position) const
{
    QTest::mousePress(screen()->windowHandle(), Qt::LeftButton, {}, position);
}

void Screen::move(const QPoint &position) const
{
    QTest::mouseMove(screen()->windowHandle(), position);
}

void Screen::lift(const QPoint &position) const
{
    QTest::mouseRelease(screen()->windowHandle(), Qt::LeftButton, {}, position);
}

void Screen::click(const QPoint &position) const
{
    press(position);
    lift(position);
}

void Screen::finish()
{
    Row::runLoop();
    for (int frame = 0; frame < longestAnimation && isBusy(); ++frame)
        Row::runLoop([this] { step(); });
}

void Screen::open(const QString &button)
{
    tap(button);
    finish();
}

void firstSlideIn(Row &row, const QString &button)
{
    while (row.isOpen()) {
        Screen screen;
        slideIn(row, screen, button);
    }
}

void laterSlideIn(Row &row, const QString &button)
{
    Screen screen;
    screen.open(button);
    while (row.isOpen()) {
        screen.open(QStringLiteral("button_back"));
        slideIn(row, screen, button);
        screen.finish();
    }
}
