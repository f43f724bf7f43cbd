#include "pages/TouchList.h"

#include "pages/DragScroll.h"
#include "pages/RowLight.h"

#include <QAbstractItemView>
#include <QMouseEvent>

TouchList::TouchList(QAbstractItemView *listView)
    : QObject(listView)
    , view(listView)
    , scroll(new DragScroll(listView, this))
    , light(new RowLight(listView, {}, this))
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
    const QModelIndex row = light->follow(event);
    if (!scroll->follow(watched, event))
        return QObject::eventFilter(watched, event);
    if (row.isValid()) {
        view->selectionModel()->setCurrentIndex(row, QItemSelectionModel::NoUpdate);
        // The last of all: its receivers may delete the view.
        view->selectionModel()->select(row, QItemSelectionModel::ClearAndSelect);
    }
    return true;
}
