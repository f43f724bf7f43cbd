#include "pages/RowLight.h"

#include <QAbstractItemView>
#include <QMouseEvent>
#include <QPainter>
#include <qdrawutil.h>
#include <utility>

namespace {
// What a fingertip may roll without meaning to drag, in px.
constexpr int tapSlack = 24;
constexpr double strength = 0.5;
// The edges of the picture, in px, which keep their width in rows of any height.
constexpr QMargins edges(0, 2, 0, 2);
} // namespace

RowLight::RowLight(QAbstractItemView *listView, std::chrono::milliseconds afterTap, QObject *parent)
    : QObject(parent)
    , view(listView)
{
    fade.setSingleShot(true);
    fade.setInterval(afterTap);
    fade.callOnTimeout(this, [this] { light({}); });
}

QModelIndex RowLight::follow(QEvent *event)
{
    if (event->type() == QEvent::Paint && lit.isValid())
        paint();
    const bool isPress =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    const bool isRelease = event->type() == QEvent::MouseButtonRelease;
    if (!isPress && !isRelease && event->type() != QEvent::MouseMove)
        return {};

    const QPoint position = static_cast<QMouseEvent *>(event)->position().toPoint();
    if (isPress) {
        fade.stop();
        isSecondTap = event->type() == QEvent::MouseButtonDblClick;
        pressPosition = position;
        pressed = view->indexAt(position);
        light(pressed);
    } else if ((position - pressPosition).manhattanLength() > tapSlack) {
        pressed = QPersistentModelIndex();
        light({});
    }
    if (!isRelease)
        return {};
    if (isSecondTap)
        light({});
    else
        fade.start();
    return std::exchange(pressed, QPersistentModelIndex());
}

void RowLight::light(const QModelIndex &row)
{
    if (lit == row)
        return;
    lit = row;
    // At once: what a tap leads to may take long.
    if (lit.isValid())
        view->viewport()->repaint();
    else
        view->viewport()->update();
}

void RowLight::paint() const
{
    QWidget *ground = view->viewport();
    const QRect row = view->visualRect(lit);
    QPainter painter(ground);
    painter.setOpacity(strength);
    qDrawBorderPixmap(
        &painter, QRect(0, row.top(), ground->width(), row.height()), edges,
        QPixmap(QStringLiteral(":/resource/images/optionPage/setLanguage/selectBackground.png")));
}
