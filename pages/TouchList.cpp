#include "pages/TouchList.h"

#include "pages/DragScroll.h"

#include <QAbstractItemView>
#include <QMouseEvent>
#include <utility>

namespace {
// What a fingertip may roll without meaning to drag, in px.
constexpr int tapSlack = 24;
} // namespace

TouchList::TouchList(QAbstractItemView *listView)
    : QObject(listView)
    , view(listView)
    , scroll(new DragScroll(listView, this))
{
    // A row that is half in sight stays there when it is chosen.
    view->setAutoScroll(false);
    view->viewport()->installEventFilter(this);
}

bool TouchList::eventFilter(QObject *watched, QEvent *event)
{
    // The view would choose on the second press of a double tap, and it must not be deleted then.
    if (event->type() == QEvent::MouseButtonDblClick) {
        const auto *second = static_cast<QMouseEvent *>(event);
        QMouseEvent press(QEvent::MouseButtonPress, second->position(), second->globalPosition(),
                          second->button(), second->buttons(), second->modifiers());
        return eventFilter(watched, &press);
    }
    if (!scroll->follow(watched, event))
        return QObject::eventFilter(watched, event);

    const QPoint position = static_cast<QMouseEvent *>(event)->position().toPoint();
    if (event->type() == QEvent::MouseButtonPress) {
        pressPosition = position;
        pressed = view->indexAt(position);
    } else if ((position - pressPosition).manhattanLength() > tapSlack) {
        pressed = QPersistentModelIndex();
    }
    if (event->type() == QEvent::MouseButtonRelease) {
        const QModelIndex row = std::exchange(pressed, QPersistentModelIndex());
        if (row.isValid()) {
            view->selectionModel()->setCurrentIndex(row, QItemSelectionModel::NoUpdate);
            // The last of all: its receivers may delete the view.
            view->selectionModel()->select(row, QItemSelectionModel::ClearAndSelect);
        }
    }
    return true;
}
