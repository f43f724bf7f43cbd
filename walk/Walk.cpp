#include "walk/Walk.h"

#include "acquisition/GetData.h"
#include "simulator/SysfsText.h"
#include "testkit/Environment.h"
#include "testkit/Touch.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QGraphicsProxyWidget>
#include <QGraphicsView>
#include <QTest>
#include <QTimer>
#include <chrono>

namespace {
using namespace std::chrono_literals;

constexpr auto patience = 10s;
constexpr auto lookInterval = 60ms;
constexpr auto soon = 400ms;
constexpr int looksOfStillness = 3;
constexpr int freeGroundY = 330;

// Those inside a graphics view included.
QWidget *widgetUnder(QWidget *root, const QPoint &position)
{
    QWidget *hit = root->childAt(position);
    for (QWidget *widget = hit; widget; widget = widget->parentWidget()) {
        auto *view = qobject_cast<QGraphicsView *>(widget);
        if (!view || !view->scene())
            continue;
        const QPoint inView = view->viewport()->mapFrom(root, position);
        for (QGraphicsItem *item : view->items(inView)) {
            auto *proxy = qgraphicsitem_cast<QGraphicsProxyWidget *>(item);
            if (!proxy || !proxy->widget())
                continue;
            const QPoint inProxy = proxy->mapFromScene(view->mapToScene(inView)).toPoint();
            QWidget *child = proxy->widget()->childAt(inProxy);
            // The overlay's plain containers let a finger through to the page below.
            const bool letsThrough =
                child && (child->inherits("QStackedWidget") ||
                          qstrcmp(child->metaObject()->className(), "QWidget") == 0);
            if (child && !letsThrough)
                return child;
        }
    }
    return hit;
}
} // namespace

Walk::Walk()
{
    setNetworks({"Home-5G", "Studio", "Balcony", "Guest", "Reading-Room", "Workshop"});
    const QString lightFile = Environment::device().lightFile();
    if (!simulator::replaceFile(lightFile, simulator::lightText(168)))
        qFatal("cannot write %s", qPrintable(lightFile));
    setReadings(23.456, 40.2);
    openWindow();
}

Walk::~Walk() = default;

void Walk::openWindow()
{
    window = std::make_unique<MainWindow>();
    window->setGeometry(0, 0, 854, 480);
    window->setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    window->show();
    waitFor("the window", [this] { return window->windowHandle()->isExposed(); });
    readSensorNow();
}

QWidget *Walk::screen() const
{
    return window.get();
}

QPoint Walk::centreOf(const QWidget *widget) const
{
    const QPoint centre = widget->mapTo(widget->window(), widget->rect().center());
    QGraphicsProxyWidget *proxy = widget->window()->graphicsProxyWidget();
    if (!proxy)
        return centre;
    QGraphicsView *view = proxy->scene()->views().constFirst();
    return view->mapTo(window.get(), view->mapFromScene(proxy->mapToScene(centre)));
}

QWidget *Walk::reachable(const std::function<bool(const QWidget *)> &wanted) const
{
    for (QWidget *widget : QApplication::allWidgets()) {
        if (!widget->isVisible() || !wanted(widget))
            continue;
        const QWidget *hit = widgetUnder(window.get(), centreOf(widget));
        if (hit && (hit == widget || widget->isAncestorOf(hit)))
            return widget;
    }
    return nullptr;
}

QWidget *Walk::find(const QString &objectName) const
{
    QWidget *found =
        reachable([&](const QWidget *widget) { return widget->objectName() == objectName; });
    if (!found)
        qFatal("nothing within reach is named %s", qPrintable(objectName));
    return found;
}

bool Walk::sees(const QString &objectName) const
{
    return reachable([&](const QWidget *widget) { return widget->objectName() == objectName; });
}

QString Walk::textOf(const QString &objectName) const
{
    return find(objectName)->property("text").toString();
}

void Walk::tapAt(const QPoint &position)
{
    ::tapAt(window.get(), position);
}

QPoint Walk::placeOf(const QString &objectName) const
{
    return centreOf(find(objectName));
}

void Walk::tap(const QString &objectName)
{
    tapAt(placeOf(objectName));
}

void Walk::pressAt(const QPoint &position)
{
    finger = position;
    ::pressAt(window.get(), finger);
}

void Walk::release()
{
    releaseAt(window.get(), finger);
}

void Walk::swipe(int fromX, int toX)
{
    drag(window.get(), QPoint(fromX, freeGroundY), QPoint(toX, freeGroundY));
}

void Walk::pressKey(QChar key)
{
    const QWidget *button = reachable([key](const QWidget *widget) {
        return widget->inherits("CharacterButton") &&
               qobject_cast<const QAbstractButton *>(widget)->text() == key;
    });
    if (!button)
        qFatal("no key %s on the screen", qPrintable(QString(key)));
    pressAt(centreOf(button));
}

void Walk::type(const QString &keys)
{
    for (const QChar key : keys) {
        pressKey(key);
        release();
    }
}

void Walk::scrollMenuToEnd()
{
    drag(window.get(), QPoint(427, 440), QPoint(427, 140));
    settle();
}

void Walk::openTile(const QString &tile)
{
    if (!sees(tile) || centreOf(find(tile)).y() > window->height() - 20)
        scrollMenuToEnd();
    if (!sees(tile)) {
        drag(window.get(), QPoint(427, 140), QPoint(427, 440));
        settle();
    }
    tap(tile);
}

void Walk::restartAtMenu()
{
    openWindow();
    tap("button_option");
}

void Walk::call(const char *className, const char *slot)
{
    QWidget *page = reachable([className](const QWidget *widget) {
        return qstrcmp(widget->metaObject()->className(), className) == 0;
    });
    if (!page || !QMetaObject::invokeMethod(page, slot))
        qFatal("cannot call %s of %s", slot, className);
}

void Walk::rearrange(const QString &neighbour, const QStringList &hidden, const QStringList &shown)
{
    const QWidget *page = find(neighbour)->parentWidget();
    for (const QString &name : hidden)
        page->findChild<QWidget *>(name)->hide();
    for (const QString &name : shown)
        page->findChild<QWidget *>(name)->show();
}

void Walk::setReadings(double celsius, double percent)
{
    const QString climateFile = Environment::device().climateFile();
    if (!simulator::replaceFile(climateFile, simulator::climateText(celsius, percent)))
        qFatal("cannot write %s", qPrintable(climateFile));
    readSensorNow();
}

void Walk::breakSensor()
{
    QFile::remove(Environment::device().climateFile());
    readSensorNow();
}

void Walk::setParticles(int value)
{
    for (GetData *scheduler : GetData::objects())
        emit scheduler->signal_updatePMData(value);
}

void Walk::readSensorNow() const
{
    // A row builds one more.
    const QList<GetData *> schedulers = GetData::objects();
    for (GetData *scheduler : schedulers)
        QMetaObject::invokeMethod(scheduler, "refresh_allData");
}

void Walk::setNetworks(const QStringList &names)
{
    if (!Environment::device().setNetworks(names))
        qFatal("cannot write the scanner");
}

void Walk::waitFor(const QString &what, const std::function<bool()> &condition) const
{
    if (!QTest::qWaitFor(condition, int(std::chrono::milliseconds(patience).count())))
        qFatal("waited in vain for %s", qPrintable(what));
}

void Walk::settle() const
{
    QImage last;
    int still = 0;
    waitFor("a still screen", [&] {
        QTest::qWait(int(lookInterval.count()));
        const QImage now = look();
        still = now == last ? still + 1 : 0;
        last = now;
        return still >= looksOfStillness;
    });
}

void Walk::keepPictureSoon()
{
    QTimer::singleShot(soon, window.get(), [this] { kept = look(); });
}

QImage Walk::picture()
{
    QImage image = kept.isNull() ? look() : kept;
    kept = {};
    return image;
}

QImage Walk::look() const
{
    return window->grab().toImage().convertToFormat(QImage::Format_RGB32);
}
