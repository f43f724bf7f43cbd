#pragma once

#include "mainscreen/DigitRow.h"
#include "pages/Quantity.h"

#include <QPoint>
#include <QWidget>
#include <memory>

class GetData;
namespace Ui {
class BaseValue;
}

/// Shows what the three reading pages have in common: a number in digit pictures, and the swipe
/// that changes the page. Transparent, so that the background shows through. GUI thread.
class BaseValue : public QWidget
{
    Q_OBJECT

public:
    explicit BaseValue(QWidget *parent = nullptr);
    ~BaseValue() override;

    /// Shows what a scheduler reports of the page's quantity; a page without one shows nothing.
    virtual void follow(const GetData *) {}

    /// Tells whether the page can be seen. What moves on it stands still while it cannot.
    virtual void setInSight(bool) {}

signals:
    /// Asks for the next page: a swipe to the left.
    void signal_slideRight();
    /// Asks for the previous page: a swipe to the right.
    void signal_slideLeft();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

    /// Draws @p row, centred. A place without a picture is empty, with one debug line.
    void showRow(const DigitRow &row);
    /// Puts the unit of @p quantity into `label_symbol`, which gets the picture's width.
    void setUnitPicture(Quantity quantity);

    std::unique_ptr<Ui::BaseValue> ui;

private:
    void arrange(int width);

    DigitRow shown; ///< at first that of the form
    QPoint pressPosition;
};
