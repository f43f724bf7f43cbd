#include "benchmarks/settings/Visitor.h"

#include "benchmarks/support/Screen.h"
#include "pages/Page.h"
#include "settings/QmlApplicationViewer.h"
#include "testkit/Environment.h"

#include <QCoreApplication>
#include <QQmlEngine>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

Visitor::Visitor(Way taken)
    : way(std::move(taken))
{
    qputenv("ZELL_FIRMWARE_URL", "http://127.0.0.1:1/refused.pkg");
    if (!Environment::device().setNetworks(QStringList(20, QStringLiteral("Network"))))
        qFatal("no scanner");
    showOnScreen(&menu);
}

void Visitor::approach()
{
    while (reached + 1 < way.taps.size())
        tapNewest(way.taps[reached++]);
}

void Visitor::leave()
{
    QWidget *page = menu.childAt(menu.rect().center());
    while (!qobject_cast<Page *>(page))
        page = page->parentWidget();
    // The language page's own button would restart the program, too.
    if (page->objectName() == QLatin1String("setLanguagePage"))
        emit static_cast<Page *>(page)->signal_backDefaultPage();
    else
        tapNewest(way.back);
    settle();
    if (menu.is_allowed_slide())
        reached = 0;
}

void Visitor::awaitSharedWheels()
{
    while (!qApp->findChild<QQmlEngine *>())
        settle();
    settle();
}

void Visitor::settle()
{
    do {
        repaint();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    } while (!wheelsAreOnTheScreen());
}

void Visitor::tapNewest(const char *name)
{
    QWidget *newest = nullptr;
    while (!newest) {
        for (auto *widget : menu.findChildren<QWidget *>(QLatin1String(name)))
            newest = widget->isVisible() ? widget : newest;
        if (!newest)
            settle();
    }
    if (menu.is_allowed_slide())
        menu.findChild<QScrollArea *>()->verticalScrollBar()->setValue(newest->y());
    click(newest);
    settle();
}

// Whether the current row of every visible wheel has reached the screen.
bool Visitor::wheelsAreOnTheScreen() const
{
    if (!way.hasWheels)
        return true;
    for (const auto *wheel : menu.findChildren<QmlApplicationViewer *>()) {
        if (wheel->isVisible() && !rowIsOnTheScreen(*wheel))
            return false;
    }
    return true;
}

bool Visitor::rowIsOnTheScreen(const QWidget &wheel) const
{
    const QRect row(wheel.mapTo(&menu, QPoint()).x(), 270, wheel.width(), 20);
    const QImage picture =
        menu.screen()
            ->grabWindow(menu.winId(), row.x(), row.y(), row.width(), row.height())
            .toImage();
    for (int x = 0; x < picture.width(); ++x) {
        if (picture.pixelColor(x, 10) == QColor(QLatin1String("#00e5ff")))
            return true;
    }
    return false;
}
