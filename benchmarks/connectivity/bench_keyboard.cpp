#include "benchmarks/support/Screen.h"
#include "benchmarks/support/Yardstick.h"
#include "connectivity/KeyBorad.h"
#include "pages/Ground.h"

#include <QApplication>
#include <QFrame>
#include <QLineEdit>

namespace {
constexpr double limit = 2.5;

// A page with a keyboard, as its hosts are built.
struct Host
{
    Host()
    {
        page.resize(854, 480);
        fillGround(&page);
        auto *container = new QFrame(&page);
        container->resize(page.size());
        line.setGeometry(71, 100, 712, 48);
        line.setEchoMode(QLineEdit::Password);
        new KeyBorad(container);
        showOnScreen(&page);
        pressMouse(&page, key);
        releaseMouse(&page, key);
        repaint();
    }

    // The longest password of a network, as a key costs the more the longer the text.
    void type() { line.setText(QString(63, QLatin1Char('x'))); }

    static constexpr QPoint key{427, 326};
    QWidget page;
    QLineEdit line{&page};
};

// From the finger on the glass to the key and its enlarged label on the screen.
void keyPress(benchmark::State &state)
{
    Host host;
    Yardstick::measure(
        state, limit,
        [&host] {
            pressMouse(&host.page, Host::key);
            repaint();
        },
        [&host] {
            releaseMouse(&host.page, Host::key);
            host.type();
            repaint();
        });
}

// From lifting the finger to the letter on the screen.
void keyRelease(benchmark::State &state)
{
    Host host;
    Yardstick::measure(
        state, limit,
        [&host] {
            releaseMouse(&host.page, Host::key);
            repaint();
        },
        [&host] {
            host.type();
            pressMouse(&host.page, Host::key);
            repaint();
        });
}
} // namespace

BENCHMARK(keyPress)->UseManualTime()->Iterations(500);
BENCHMARK(keyRelease)->UseManualTime()->Iterations(500);
