#include "mainscreen/MovingParts.h"

#include <QGraphicsProxyWidget>
#include <QGraphicsView>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace {
constexpr int calmFramesWanted = 4;
// For the sake of smooth edges a scene paints a little more than it was asked for.
constexpr QMargins sceneMargin(2, 2, 2, 2);
} // namespace

MovingParts::MovingParts(QWidget *widget)
    : QObject(widget)
    , stage(widget)
{
}

void MovingParts::watch(const QList<QLabel *> &labels)
{
    for (QLabel *label : labels) {
        parts.append(Part{.label = label, .painted = {}});
        label->installEventFilter(this);
    }
}

void MovingParts::refresh()
{
    // All of it: to clip to many rectangles costs more than that saves.
    if (!frame.isNull())
        viewport->update(place);
}

void MovingParts::rest()
{
    calmFrames = 0;
    if (frame.isNull())
        return;
    for (QPixmap *picture : {&ground, &still, &joined, &frame})
        *picture = {};
    stage->setUpdatesEnabled(true);
}

bool MovingParts::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == viewport)
        return event->type() == QEvent::Paint && paint(static_cast<QPaintEvent *>(event)->region());
    if (event->type() == QEvent::Move && findView()) {
        if (frame.isNull() && calmFrames == calmFramesWanted)
            takeOver();
        refresh();
    }
    return event->type() == QEvent::Paint && isTaking;
}

bool MovingParts::findView()
{
    const QGraphicsProxyWidget *proxy = stage->window()->graphicsProxyWidget();
    if (!viewport && proxy) {
        viewport = proxy->scene()->views().constFirst()->viewport();
        viewport->installEventFilter(this);
    }
    return viewport && proxy;
}

QRect MovingParts::placeOnView() const
{
    const QGraphicsProxyWidget *proxy = stage->window()->graphicsProxyWidget();
    const QPointF onPage = stage->mapTo(stage->window(), QPoint());
    const QGraphicsView *view = proxy->scene()->views().constFirst();
    return {view->mapFromScene(proxy->mapToScene(onPage)), stage->size()};
}

void MovingParts::takeOver()
{
    isTaking = true;
    stage->hide();
    dropFromCache();
    ground = viewport->grab(place);
    stage->show();
    dropFromCache();
    still = QPixmap(stage->size());
    still.fill(Qt::transparent);
    stage->render(&still, {}, {}, QWidget::DrawChildren);
    isTaking = false;
    joined = still;
    frame = ground;
    for (Part &part : parts)
        part.painted = stage->rect();
    // Whatever moves would have the scene paint it.
    stage->setUpdatesEnabled(false);
}

void MovingParts::dropFromCache() const
{
    const QPoint onPage = stage->mapTo(stage->window(), QPoint());
    stage->window()->graphicsProxyWidget()->update(QRect(onPage, stage->size()));
}

bool MovingParts::paint(const QRegion &region)
{
    if (isTaking || !findView())
        return false;
    if (frame.isNull())
        place = placeOnView();
    const bool isCalm = (place + sceneMargin).contains(region.boundingRect());
    calmFrames = isCalm ? std::min(calmFrames + 1, calmFramesWanted) : 0;
    // What the scene paints from now on must have the parts where they are.
    if (!isCalm)
        rest();
    if (frame.isNull())
        return false;
    compose();
    QPainter(viewport).drawPixmap(place.topLeft(), frame);
    return true;
}

// Step by step as the scene would: other roundings would be seen when it takes over again.
void MovingParts::compose()
{
    QPainter joiner(&joined);
    QPainter painter(&frame);
    for (Part &part : parts) {
        const QRect now = part.label->geometry() & stage->rect();
        const QRect change = std::exchange(part.painted, now) | now;
        joiner.setClipRect(change);
        joiner.setCompositionMode(QPainter::CompositionMode_Source);
        joiner.drawPixmap(change.topLeft(), still, change);
        joiner.setCompositionMode(QPainter::CompositionMode_SourceOver);
        for (const Part &each : std::as_const(parts)) {
            if (change.intersects(each.label->geometry()))
                joiner.drawPixmap(each.label->pos(), each.label->pixmap(Qt::ReturnByValue),
                                  QRect(QPoint(), each.label->size()));
        }
        painter.drawPixmap(change.topLeft(), ground, change);
        painter.drawPixmap(change.topLeft(), joined, change);
    }
}
