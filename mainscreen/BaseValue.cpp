#include "mainscreen/BaseValue.h"

#include "mainscreen/Transparent.h"
#include "pages/CancelledTouch.h"
#include "ui_BaseValue.h"

#include <QDebug>
#include <QMouseEvent>
#include <array>

namespace {
// The halo around each numeral reaches into its neighbour's picture.
constexpr int overlap = 17;

void showGlyph(QLabel *label, Glyph glyph)
{
    label->setVisible(glyph != glyphHidden);
    const QString picture = glyphPicture(glyph);
    if (picture.isEmpty())
        label->clear();
    else
        label->setPixmap(QPixmap(picture));
}
} // namespace

BaseValue::BaseValue(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::BaseValue>())
{
    ui->setupUi(this);
    makeTransparent(this);
    ui->label_minus->hide();
    ui->label_hundreds->hide();
}

BaseValue::~BaseValue() = default;

void BaseValue::mousePressEvent(QMouseEvent *event)
{
    pressPosition = event->position().toPoint();
}

void BaseValue::mouseReleaseEvent(QMouseEvent *event)
{
    if (CancelledTouch::lifts(event))
        return;
    const int distance = event->position().toPoint().x() - pressPosition.x();
    // Kept[any-swipe]: a single pixel is enough, however slow and however steep.
    if (distance < 0)
        emit signal_slideRight();
    else if (distance > 0)
        emit signal_slideLeft();
}

void BaseValue::showRow(const DigitRow &row)
{
    const auto show = [&](QLabel *label, Glyph DigitRow::*place) {
        if (row.*place != shown.*place)
            showGlyph(label, row.*place);
    };
    show(ui->label_minus, &DigitRow::minus);
    show(ui->label_hundreds, &DigitRow::hundreds);
    show(ui->label_tens, &DigitRow::tens);
    show(ui->label_units, &DigitRow::units);
    shown = row;
    // Kept[unit-gone]: a later reading has none.
    if (row.hidesUnit)
        ui->label_symbol->hide();
    arrange(row.width);
    if (row.hasBlank())
        qDebug() << objectName() << "has no picture for a digit of its reading";
}

void BaseValue::setUnitPicture(Quantity quantity)
{
    const QPixmap picture(lookOf(quantity).unitPicture.toString());
    ui->label_symbol->setPixmap(picture);
    ui->label_symbol->setFixedWidth(picture.width());
}

// No box layout: those take a negative spacing for "the style's own".
void BaseValue::arrange(int width)
{
    ui->frame_value->setFixedWidth(width);
    ui->frame_value->move((ui->frame_center->width() - width) / 2, 0);

    const std::array<QLabel *, 5> places{ui->label_minus, ui->label_hundreds, ui->label_tens,
                                         ui->label_units, ui->label_symbol};
    int total = overlap;
    for (const QLabel *place : places) {
        if (!place->isHidden())
            total += place->width() - overlap;
    }
    int x = (width - total) / 2;
    for (QLabel *place : places) {
        if (place->isHidden())
            continue;
        place->move(x, 0);
        x += place->width() - overlap;
    }
}
