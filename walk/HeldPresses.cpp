#include "walk/HeldPresses.h"

#include "shell/ScreenOff.h"
#include "testkit/Touch.h"
#include "walk/LayoutCheck.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <array>

namespace {
constexpr int leastChange = 500;

// What answers in another way, or acts at the press, which no cancelled touch takes back.
constexpr std::array withoutLight{
    "OptionFrame frame_value",      // a number is no plate: the scan answers
    "OptionFrame frame_scan",       // nor is the sensor's picture
    "QSlider slider_light",         // the handle
    "KeyButton button_shiftNormal", // the other letters
    "KeyButton button_shiftChecked",
    "QRadioButton radio_day4", // its text turns white, 491 px of it
};

// What the window system shows, drawn by nobody but the program itself.
QImage shown(const QWidget *window)
{
    return window->screen()->grabWindow(window->winId()).toImage();
}

int changedPixels(const QImage &one, const QImage &other, const QRect &part)
{
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            count += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
    }
    return count;
}
} // namespace

QStringList holdEverything(const Walk &walk,
                           const std::function<void(const QString &, const QImage &)> &look)
{
    QWidget *window = walk.screen();
    // One finger is on the screen already, or the next one wakes it.
    if (QGuiApplication::mouseButtons() || window->findChild<ScreenOff *>()->isVisible())
        return {};
    QStringList findings;
    const QList<Placed> places = touchPlaces(window);
    for (const Placed &place : places) {
        if (std::ranges::find(withoutLight, place.name) != withoutLight.end())
            continue;
        const QPoint finger = place.seen.center();
        const QImage before = shown(window);
        pressAt(window, finger);
        const QImage held = shown(window);
        look(place.name, held);
        cancelAt(window, finger);
        QCoreApplication::processEvents();
        const int answer = changedPixels(before, held, place.seen);
        const int rest = changedPixels(before, shown(window), place.seen);
        if (answer < leastChange)
            findings.append(
                QStringLiteral("%1 answers a press with %2 px").arg(place.name).arg(answer));
        if (rest > 0)
            findings.append(QStringLiteral("%1 keeps %2 px of a press").arg(place.name).arg(rest));
    }
    return findings;
}
