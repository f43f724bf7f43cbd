#pragma once

#include "acquisition/GetData.h"
#include "mainscreen/MainView.h"
#include "pages/Look.h"
#include "shell/MainWindow.h"
#include "testkit/Touch.h"

#include <QGraphicsProxyWidget>
#include <QPainter>
#include <QScreen>
#include <QStyleOptionGraphicsItem>
#include <QTest>
#include <QTimeLine>

inline constexpr QPoint freeGround(300, 60);

/// What a test of the main screen holds in its hands; counts the paintings of what it watches.
class ShownMainScreen : public QObject
{
protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        paintings += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    /// The widget of that name, of the pages in their order or of the overlay.
    QWidget *embedded(const QString &name) const
    {
        QWidget *found = nullptr;
        for (QGraphicsItem *item : view->scene()->items(Qt::AscendingOrder)) {
            if (item->isWidget() && !found)
                found =
                    static_cast<QGraphicsProxyWidget *>(item)->widget()->findChild<QWidget *>(name);
        }
        return found;
    }

    QImage onScreen() const { return window->screen()->grabWindow(window->winId()).toImage(); }

    QPoint centre(const QString &name) const
    {
        const QWidget *widget = embedded(name);
        return widget->mapTo(widget->window(), widget->rect().center());
    }

    /// The main screen without any picture that was kept.
    QImage drawnAnew() const
    {
        QPixmap whole(Look::screen);
        whole.fill(view->backgroundBrush().color());
        QPainter painter(&whole);
        for (QGraphicsItem *item : view->scene()->items(Qt::AscendingOrder)) {
            painter.setTransform(item->sceneTransform());
            painter.setOpacity(item->opacity());
            if (!item->isWidget()) {
                const QStyleOptionGraphicsItem option;
                item->paint(&painter, &option, nullptr);
                continue;
            }
            QPixmap own(Look::screen);
            own.fill(Qt::transparent);
            static_cast<QGraphicsProxyWidget *>(item)->widget()->render(&own);
            // A page that comes ends at the tiles.
            const int end = item->x() > 0 ? 590 - int(item->x()) : own.width();
            painter.drawPixmap(0, 0, own, 0, 0, end, own.height());
        }
        painter.end();
        return whole.toImage();
    }

    void tap(const QString &name) { tapAt(window.get(), centre(name)); }
    double position() const { return embedded("frame_center")->window()->x() / 854.0; }

    void report(int reading) const
    {
        auto *scheduler = view->findChild<GetData *>();
        emit scheduler->signal_updatePMData(reading);
        emit scheduler->signal_updateTempData(reading);
        emit scheduler->signal_updateHumData(reading);
    }

    void endSlide()
    {
        if (timeLine->state() == QTimeLine::Running)
            timeLine->setCurrentTime(timeLine->duration());
        QTRY_COMPARE(timeLine->state(), QTimeLine::NotRunning);
    }

    void swipe(int distance)
    {
        drag(window.get(), freeGround, freeGround + QPoint(distance, 90));
        endSlide();
    }

    std::unique_ptr<MainWindow> window;
    MainView *view = nullptr;
    QTimeLine *timeLine = nullptr;
    int paintings = 0;
};
