#pragma once

#include "mainscreen/DigitRow.h"
#include "pages/Quantity.h"

#include <QPoint>
#include <QWidget>
#include <memory>

class GetData;
class OptionFrame;
namespace Ui {
class BaseValue;
}

/// What the three reading pages have in common: a number in digit pictures, and the swipe that
/// changes the page. Transparent, so that the background shows through. GUI thread.
class BaseValue : public QWidget
{
    Q_OBJECT

public:
    explicit BaseValue(QWidget *parent = nullptr);
    ~BaseValue() override;

    /// Shows what @p scheduler reports of the page's quantity; a page without one shows nothing.
    virtual void follow(const GetData *scheduler);

signals:
    /// A swipe to the left: the next page is wanted.
    void signal_slideRight();
    /// A swipe to the right: the previous page is wanted.
    void signal_slideLeft();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

    /// Draws @p row, centred. A place without a picture is empty, with one debug line.
    void showRow(const DigitRow &row);
    /// Puts the unit of @p quantity into `label_symbol`, which gets the picture's width.
    void setUnitPicture(Quantity quantity);
    void hideUnit();

    /// `frame_center`: the area of the number, hidden as a whole.
    QWidget *numberArea() const;
    /// `frame_value`: the number, which can be tapped.
    OptionFrame *number() const;

    std::unique_ptr<Ui::BaseValue> ui;

private:
    void arrange(int width);

    QPoint pressPosition;
    QPoint releasePosition;
};
