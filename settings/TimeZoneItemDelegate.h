#pragma once

#include <QPixmap>
#include <QStyledItemDelegate>

/// One line of the time zone list in its two halves.
struct timeZoneItem
{
    /// Abbreviation and offset, "KLT+14:00".
    QString zone;
    QString description;

    /// Splits @p line at its tab; without one the whole line is the zone.
    static timeZoneItem fromLine(const QString &line);
};

/// Paints a row of the time zone list: the two halves of its line in column 0, the check mark of
/// the chosen row, text "1", in column 1. Paints nothing for a selection. GUI thread.
class TimeZoneItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit TimeZoneItemDelegate(const QPixmap &checkMark, QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    QPixmap pixChecked;
};
