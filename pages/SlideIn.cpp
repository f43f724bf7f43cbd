#include "pages/SlideIn.h"

#include "pages/Ground.h"
#include "pages/Look.h"

#include <QApplication>
#include <QEvent>
#include <QGraphicsProxyWidget>
#include <QGraphicsView>
#include <QPainter>
#include <QPointer>
#include <chrono>

namespace {
using namespace std::chrono_literals;

constexpr auto slideTime = 400ms;

// Stands for a page on its way, which is not painted meanwhile: painted in every frame, with all
// that lies below it, a page costs ten times as much as its picture.
class MovingPicture : public QWidget
{
public:
    MovingPicture(QWidget *moved, QWidget *place)
        : QWidget(place)
        , page(moved)
        , embedding(moved->window() == place->window() ? nullptr : moved->window())
        , picture(moved->size())
    {
        // Not grabbed: that gives a picture with an alpha channel, which is blended.
        moved->render(&picture, {}, {}, QWidget::DrawChildren);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_OpaquePaintEvent);
        setGeometry(page->geometry());
        show();
        page->setUpdatesEnabled(false);
        qApp->installEventFilter(this);
    }

    void uncover()
    {
        qApp->removeEventFilter(this);
        hide();
        deleteLater();
        if (page)
            page->setUpdatesEnabled(true);
        if (embedding)
            QCoreApplication::postEvent(embedding, new QEvent(QEvent::UpdateRequest));
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto type = event->type();
        const bool isPress =
            type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
        // Whoever touches the page sees what it does.
        if (isPress || !page || (watched == page && type == QEvent::Hide))
            uncover();
        else if (watched == page && type == QEvent::Move)
            move(page->pos());
        // A page in a graphics scene would have a pixel beside it painted in every frame, with all
        // that the scene holds there.
        return embedding && watched == embedding && type == QEvent::UpdateRequest;
    }

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).drawPixmap(0, 0, picture); }

private:
    QPointer<QWidget> page;
    QPointer<QWidget> embedding;
    QPixmap picture;
};

// Above all that lies below the page. A page in a graphics scene would have the scene composed
// anew in every frame, so its picture slides over the view.
QWidget *placeOfPicture(QWidget *page)
{
    const QGraphicsProxyWidget *proxy = page->window()->graphicsProxyWidget();
    return proxy ? proxy->scene()->views().constFirst() : page->parentWidget();
}
} // namespace

QPropertyAnimation *slideIn(QWidget *holder)
{
    fillGround(holder);
    auto *animation = new QPropertyAnimation(holder, "pos");
    QObject::connect(holder, &QObject::destroyed, animation, &QObject::deleteLater);
    animation->setDuration(int(slideTime.count()));
    animation->setEasingCurve(QEasingCurve::InCurve);
    animation->setStartValue(QPoint(Look::screen.width(), 0));
    animation->setEndValue(QPoint(0, 0));
    holder->move(Look::screen.width(), 0);
    holder->show();
    holder->raise();

    static QPointer<MovingPicture> picture;
    if (picture)
        picture->uncover();
    picture = new MovingPicture(holder, placeOfPicture(holder));
    QObject::connect(animation, &QPropertyAnimation::finished, picture, &MovingPicture::uncover);

    // Kept[animation-left-behind]: it stays after its run, one for each opening.
    animation->start(QAbstractAnimation::KeepWhenStopped);
    return animation;
}
