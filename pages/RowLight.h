#pragma once

#include <QObject>
#include <QPersistentModelIndex>
#include <QPoint>
#include <QTimer>
#include <chrono>

class QAbstractItemView;
class QEvent;

/// Lights the row of a list under the finger, below what the list paints of it, as long as a
/// release would be a tap on that row. GUI thread.
class RowLight : public QObject
{
    Q_OBJECT

public:
    /// Leaves a row of @p listView that was tapped once lit for @p afterTap. Owned by @p parent.
    RowLight(QAbstractItemView *listView, std::chrono::milliseconds afterTap, QObject *parent);

    /// Serves the event filter of whoever watches the viewport of the list, with every event of it.
    /// Returns the row that a release taps; an invalid one in all other cases.
    QModelIndex follow(QEvent *event);

    /// Returns the row under the finger; invalid where there is none or it has begun to drag.
    QModelIndex pressedRow() const { return pressed; }

private:
    void light(const QModelIndex &row);
    void paint() const;

    QAbstractItemView *view;
    QPoint pressPosition;
    bool isSecondTap = false;
    QPersistentModelIndex pressed;
    QPersistentModelIndex lit;
    QTimer fade{this};
};
