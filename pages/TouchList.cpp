#include "pages/TouchList.h"

#include "pages/DragScroll.h"

#include <QAbstractItemView>
#include <QMouseEvent>
#include <QScrollBar>
#include <utility>

namespace {
// What a fingertip may roll without meaning to drag, in px.
constexpr int tapSlack = 24;
} // namespace

TouchList::TouchList(QAbstractItemView *listView)
    : QObject(listView)
    , view(listView)
{
    view->viewport()->installEventFilter(this);
    // Later filters come first: the drag sees the events before they end here.
    new DragScroll(view->viewport(), view->verticalScrollBar(), this);
}

bool TouchList::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        pressPosition = mouse->globalPosition().toPoint();
        pressed = view->indexAt(mouse->position().toPoint());
        return true;
    }
    case QEvent::MouseMove: {
        const QPoint moved =
            static_cast<QMouseEvent *>(event)->globalPosition().toPoint() - pressPosition;
        if (moved.manhattanLength() > tapSlack)
            pressed = QPersistentModelIndex();
        return true;
    }
    case QEvent::MouseButtonRelease: {
        const QModelIndex row = std::exchange(pressed, QPersistentModelIndex());
        if (row.isValid())
            view->selectionModel()->select(row, QItemSelectionModel::ClearAndSelect);
        return true;
    }
    default:
        return QObject::eventFilter(watched, event);
    }
}
