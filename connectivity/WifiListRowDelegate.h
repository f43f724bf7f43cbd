#pragma once

#include <QPixmap>
#include <QStyledItemDelegate>
#include <array>

/// Paints a row of the Wi-Fi list, the ground of a selected row included: lock, signal, name, and
/// at the right how far the connection has come. A name too long for the row is elided.
///
/// Reads the roles of WifiListModel. A signal level outside 1 ... 4 is drawn as the nearest.
class WifiListRowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit WifiListRowDelegate(QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    // The pictures of a row in one colour.
    struct RowLook
    {
        QColor text;
        QPixmap lock;
        std::array<QPixmap, 4> signalLevels;
    };

    static RowLook loadLook(const QColor &text, const QString &lock, const QString &signal);
    /// Paints what stands at the right of @p row and returns where the name has to end.
    int paintProgress(QPainter *painter, const QRect &row, const QRect &line, bool connected,
                      bool connecting) const;

    RowLook normal;
    RowLook highlighted;
    QPixmap ground;
    QPixmap enter;
    QPixmap loading;
};
