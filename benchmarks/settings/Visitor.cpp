#include "benchmarks/settings/Visitor.h"

#include "benchmarks/support/Row.h"
#include "pages/Page.h"
#include "settings/OptionPage.h"
#include "settings/QmlApplicationViewer.h"

#include <QQmlEngine>
#include <QScreen>
#include <QScrollArea>
#include <algorithm>

Visitor::Visitor(Way taken)
    : way(std::move(taken))
{
    qputenv("ZELL_FIRMWARE_URL", "http://127.0.0.1:1/refused.pkg");
    screen.setNetworks(QStringList(20, QStringLiteral("Network")));
    screen.open(QStringLiteral("button_option"));
    screen.open(QStringLiteral("option_setTime"));
    screen.waitFor(QStringLiteral("the wheels"), [] { return qApp->findChild<QQmlEngine *>(); });
    screen.open(QStringLiteral("button_back"));
}

void Visitor::approach()
{
    while (reached + 1 < way.taps.size())
        tap(way.taps[reached++]);
    last = placeOf(way.taps.back());
}

void Visitor::open() const
{
    screen.click(last);
}

void Visitor::leave()
{
    screen.finish();
    // The language page's own button would restart the program, too.
    if (screen.sees(QStringLiteral("setLanguagePage")))
        emit Screen::visible<Page>()->signal_backDefaultPage();
    else
        tap(way.back);
    if (Screen::visible<OptionPage>()->is_allowed_slide())
        reached = 0;
}

// What a tap opens may be answered over the network first.
QPoint Visitor::placeOf(const char *name)
{
    QWidget *found = nullptr;
    screen.waitFor(QLatin1String(name), [&] {
        screen.finish();
        for (QWidget *widget : screen.screen()->findChildren<QWidget *>(QLatin1String(name)))
            found = widget->isVisible() ? widget : found;
        return found;
    });
    if (Screen::visible<OptionPage>()->is_allowed_slide())
        Screen::visible<QScrollArea>()->ensureWidgetVisible(found);
    screen.finish();
    return found->mapTo(screen.screen(), found->rect().center());
}

void Visitor::tap(const char *name)
{
    screen.click(placeOf(name));
    screen.finish();
}

bool Visitor::wheelsAreOnTheScreen() const
{
    const auto wheels = screen.screen()->findChildren<QmlApplicationViewer *>();
    return std::ranges::all_of(wheels, [this](const QWidget *wheel) {
        return !wheel->isVisible() || rowIsOnTheScreen(*wheel);
    });
}

bool Visitor::rowIsOnTheScreen(const QWidget &wheel) const
{
    const QWidget *window = screen.screen();
    const QRect row(wheel.mapTo(window, QPoint()).x(), 270, wheel.width(), 20);
    const QImage picture =
        window->screen()
            ->grabWindow(window->winId(), row.x(), row.y(), row.width(), row.height())
            .toImage();
    for (int x = 0; x < picture.width(); ++x) {
        if (picture.pixelColor(x, 10) == QColor(QLatin1String("#00e5ff")))
            return true;
    }
    return false;
}
