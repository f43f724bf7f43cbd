#pragma once

#include "pages/FormPage.h"

class DragScroll;
class RowLight;

namespace Ui {
class TimeZonePage;
}

/// The list of time zones. Choosing one, by a double tap, moves the check mark and no more.
///
/// The page exists once. GUI thread.
class TimeZonePage : public SinglePage<TimeZonePage, Ui::TimeZonePage>
{
    Q_OBJECT

public:
    explicit TimeZonePage(QWidget *parent = nullptr);

    /// Follows the finger on the list.
    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    void on_tableWidget_timeZone_cellDoubleClicked(int row, int column);

private:
    void fillTable();

    RowLight *light;
    DragScroll *scroll;
};
