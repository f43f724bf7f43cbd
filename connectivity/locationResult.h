#pragma once

#include "pages/FormPage.h"

class DragScroll;
class LineCaret;
class RowLight;

namespace Ui {
class locationResult;
}

/// The places that were found: a fixed sample, scrolled by dragging, or the view of no result once
/// the search is cleared. GUI thread.
class locationResult : public FormPage<Ui::locationResult>
{
    Q_OBJECT

public:
    explicit locationResult(QWidget *parent = nullptr);

    /// Follows the finger on the list.
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Shows the list and appends the sample to it.
    void show_locate_result();

public slots:
    void delete_searchLocation();

private:
    void showPlaces(bool found);

    LineCaret *caret;
    RowLight *light;
    DragScroll *scroll;
};
