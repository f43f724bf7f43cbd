#include "mainscreen/MainView.h"

#include "acquisition/GetData.h"
#include "mainscreen/BaseScene.h"
#include "mainscreen/HumidityPage.h"
#include "mainscreen/PageDots.h"
#include "mainscreen/PmPage.h"
#include "mainscreen/SparseProxy.h"
#include "mainscreen/StripGeometry.h"
#include "mainscreen/TemperaturePage.h"
#include "pages/Look.h"

#include <QCoreApplication>
#include <QGraphicsPixmapItem>
#include <QGraphicsProxyWidget>
#include <QPixmapCache>
#include <QTimeLine>
#include <algorithm>
#include <chrono>

namespace {
using namespace std::chrono_literals;

constexpr qreal backgroundLevel = 0;
constexpr qreal dotsLevel = 1;
constexpr qreal pageLevel = 2;
constexpr qreal overlayLevel = 3;
constexpr int firstFrame = -1000;
constexpr auto slideTime = 500ms;
constexpr auto tick = 16ms;
// In KB. Every picture of the program shares this cache.
constexpr int pictureMemory = 25 * 1024;
constexpr int leftOfTiles = 590;

// Ends at the tiles on its way, so that no number runs under them and the side bar.
class PageProxy : public SparseProxy
{
public:
    using SparseProxy::SparseProxy;

    QPainterPath shape() const override
    {
        QPainterPath path;
        path.addRect(seenPart());
        return path;
    }

protected:
    QRect seenPart() const override
    {
        QRect seen = rect().toRect();
        if (x() > 0)
            seen.setWidth(leftOfTiles - int(x()));
        return seen;
    }
};
} // namespace

MainView::MainView(QWidget *parent)
    : QGraphicsView(parent)
{
    setObjectName(QStringLiteral("MainView"));
    resize(Look::screen);
    setScene(&graphicsScene);
    scheduler = new GetData(this);
    scene_init();
    connect_init();
    animation_init();
}

void MainView::scene_init()
{
    // A fixed rectangle: otherwise every step of a slide has the scene measured anew.
    setSceneRect(QRectF(QPointF(0, 0), Look::screen));
    centerOn(width() / 2.0, height() / 2.0);
    setWindowFlag(Qt::FramelessWindowHint);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    setBackgroundBrush(QColor(0x07, 0x0b, 0x0e));
    setOptimizationFlags(DontSavePainterState | DontAdjustForAntialiasing);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    QPixmapCache::setCacheLimit(std::max(QPixmapCache::cacheLimit(), pictureMemory));

    readingPages = {new PmPage, new TemperaturePage, new HumidityPage};
    for (BaseValue *page : std::as_const(readingPages))
        addProxy(new PageProxy(page), pageLevel);
    baseScene = new BaseScene;
    addProxy(new SparseProxy(baseScene), overlayLevel);
    background = graphicsScene.addPixmap(
        QPixmap(QStringLiteral(":/resource/images/mainPage/backgroud/backgroudMain.png")));
    background->setZValue(backgroundLevel);
    dots = new PageDots;
    dots->setZValue(dotsLevel);
    graphicsScene.addItem(dots);
    graphicsScene.setItemIndexMethod(QGraphicsScene::NoIndex);

    change_page(firstFrame);
    baseScene->change_currentPage(currentPage);
}

void MainView::addProxy(QGraphicsProxyWidget *proxy, qreal z)
{
    graphicsScene.addItem(proxy);
    proxy->setZValue(z);
}

void MainView::connect_init()
{
    for (BaseValue *page : std::as_const(readingPages)) {
        connect(page, &BaseValue::signal_slideRight, this, &MainView::slide_right);
        connect(page, &BaseValue::signal_slideLeft, this, &MainView::slide_left);
        page->follow(scheduler);
    }
    connect(baseScene, &BaseScene::signal_jumpPage, this, &MainView::choose_page);
    connect(baseScene, &BaseScene::shownPageChanged, this, &MainView::updateSight);
    baseScene->follow(scheduler);
}

void MainView::animation_init()
{
    timeLine = new QTimeLine(int(slideTime.count()), this);
    // Kept[first-frames]: every slide brings frames of its own.
    timeLine->setFrameRange(0, 100);
    timeLine->setUpdateInterval(int(tick.count()));
    timeLine->setEasingCurve(QEasingCurve::Linear);
    connect(timeLine, &QTimeLine::frameChanged, this, &MainView::change_page);
}

void MainView::slide(int pageCount)
{
    timeLine->setFrameRange(Strip::frameAt(position), Strip::frameAt(position + float(pageCount)));
    timeLine->start();
}

// Kept[slide-by-direction]: nothing of the product calls it.
void MainView::slide_show(SlideDirection direction)
{
    if (direction == SlideDirection::Right)
        slide_right();
    else
        slide_left();
}

bool MainView::isSliding() const
{
    return timeLine->state() != QTimeLine::NotRunning;
}

void MainView::slide_right()
{
    if (isSliding() || !Strip::hasNext(position))
        return;
    slide(-1);
    ++currentPage;
    baseScene->change_currentPage(currentPage);
}

void MainView::slide_left()
{
    if (isSliding() || !Strip::hasPrevious(position))
        return;
    slide(1);
    --currentPage;
    baseScene->change_currentPage(currentPage);
}

void MainView::choose_page(int page)
{
    if (isSliding())
        return;
    // Kept[tile-keeps-page]: the tiles, the caption and the page number stay those of before.
    if (const std::optional<int> pageCount = Strip::slideToChosen(position, page))
        slide(*pageCount);
}

void MainView::change_page(int frame)
{
    position = float(frame) / Strip::framesPerPage;
    for (int i = 0; i < readingPages.size(); ++i)
        readingPages[i]->graphicsProxyWidget()->setPos(Strip::pageX(i, position, width()), 0);
    background->setPos(Strip::backgroundX(position, width(), background->pixmap().width()), 0);
    dots->light(Strip::nearestPage(position));
    for (const QuantityLook &look : quantities)
        baseScene->setLeading(look.quantity,
                              Strip::slideToChosen(position, int(look.quantity)).has_value());
    updateSight();
}

void MainView::updateSight()
{
    const bool isSeen = isVisible() && !baseScene->showsHistory();
    for (BaseValue *page : std::as_const(readingPages)) {
        QGraphicsProxyWidget *proxy = page->graphicsProxyWidget();
        const double opacity = isSeen ? Strip::opacityAt(int(proxy->x()), width()) : 0;
        proxy->setOpacity(opacity);
        page->setInSight(opacity > 0);
    }
}

bool MainView::viewportEvent(QEvent *event)
{
    const bool isUsed = QGraphicsView::viewportEvent(event);
    const bool isPress =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (isPress) {
        isOffPages = !event->isAccepted();
        // A widget in a scene asks to be painted later, and the release may be waiting already.
        viewport()->repaint();
    }
    if (isOffPages && (isPress || event->type() == QEvent::MouseButtonRelease))
        QCoreApplication::sendEvent(readingPages.last(), event);
    return isUsed;
}

void MainView::showEvent(QShowEvent *event)
{
    QGraphicsView::showEvent(event);
    updateSight();
}

void MainView::hideEvent(QHideEvent *event)
{
    QGraphicsView::hideEvent(event);
    updateSight();
}

void MainView::drawBackground(QPainter *painter, const QRectF &rect)
{
    const QRegion bare =
        QRegion(rect.toAlignedRect()) - background->sceneBoundingRect().toAlignedRect();
    for (const QRect &part : bare)
        QGraphicsView::drawBackground(painter, part);
}
