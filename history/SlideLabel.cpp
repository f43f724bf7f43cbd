#include "history/SlideLabel.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>

namespace {
constexpr int horizontalGap = 9;
constexpr int verticalGap = 3;
constexpr int chipHeight = 42;
constexpr int unitWidth = 73;
constexpr QColor contourColor(0x21, 0x21, 0x21, 160);
constexpr int contourWidth = 3;

// White on a plate of any colour: a dark contour below the glyphs keeps them legible. Each of the
// few glyphs is drawn once, as strokes would cost more than all else that a moving finger repaints.
class OutlinedLabel : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *) override
    {
        int width = 0;
        for (const QChar sign : text())
            width += glyph(sign).width() - 2 * contourWidth;
        const QRect place = contentsRect();
        int x = place.x() + (place.width() - width) / 2 - contourWidth;
        QPainter painter(this);
        drawFrame(&painter);
        for (const QChar sign : text()) {
            const QPixmap picture = glyph(sign);
            painter.drawPixmap(x, place.bottom() + 1 - picture.height(), picture);
            x += picture.width() - 2 * contourWidth;
        }
    }

private:
    // As wide as its advance, with room for the contour on both sides.
    QPixmap glyph(QChar sign)
    {
        QPixmap &picture = glyphs[sign];
        if (!picture.isNull())
            return picture;
        const QFontMetrics metrics = fontMetrics();
        picture = QPixmap(metrics.horizontalAdvance(sign) + 2 * contourWidth, metrics.height());
        picture.fill(Qt::transparent);
        QPainterPath shape;
        shape.addText(contourWidth, metrics.ascent(), font(), sign);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.strokePath(shape, QPen(contourColor, contourWidth));
        painter.fillPath(shape, Qt::white);
        return picture;
    }

    QHash<QChar, QPixmap> glyphs;
};

template <class Label = QLabel>
QLabel *makeLabel(QWidget *parent, const QString &text, int pixelSize, Qt::Alignment alignment)
{
    auto *label = new Label(text, parent);
    QFont font = label->font();
    font.setPixelSize(pixelSize);
    label->setFont(font);
    label->setAlignment(alignment);
    label->setIndent(0);
    return label;
}
} // namespace

SlideLabel::SlideLabel(QWidget *parent)
    : QWidget(parent)
    , timeLabel(makeLabel(this, QStringLiteral("2005-7-11/23:02"), 24,
                          Qt::AlignHCenter | Qt::AlignBottom))
    , valueLabel(makeLabel<OutlinedLabel>(this, QStringLiteral("77"), 34,
                                          Qt::AlignHCenter | Qt::AlignBottom))
    , unitLabel(makeLabel(this, QStringLiteral("cm"), 32, Qt::AlignCenter))
{
    setStyleSheet(QStringLiteral("QLabel {background: transparent; font-family: Helvetica;}"));
    timeLabel->setStyleSheet(QStringLiteral("QLabel {color: #ffffff;padding: 0px;}"));
    unitLabel->setStyleSheet(QStringLiteral("QLabel {color: #4e4e4e}"));

    // The padding of the chip's style sits on top: aligned with the bottom its number is centred.
    // The rows keep their heights and the chip takes the width that the unit leaves: neither jumps
    // with the number shown, and fonts of generous line height do not spread them.
    timeLabel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    valueLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    unitLabel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    unitLabel->setMinimumWidth(unitWidth);

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(horizontalGap);
    grid->setVerticalSpacing(verticalGap);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(0, 1);
    grid->setRowMinimumHeight(1, chipHeight);
    grid->addWidget(timeLabel, 0, 0, 1, 2);
    grid->addWidget(valueLabel, 1, 0);
    grid->addWidget(unitLabel, 1, 1);
}

// Kept[read-out-date]: the date it was built with stays.
void SlideLabel::updateValue(float value, const QString &unit, const QString &, const QColor &color)
{
    valueLabel->setText(QString::asprintf("%.1f", double(value)));
    unitLabel->setText(unit);
    const QString style =
        QStringLiteral("QLabel { width: 60px;height: 30px;background-color : %1; color : white; "
                       "border:0px groove gray;border-radius:10px;padding-top:5px;}")
            .arg(color.name());
    // Setting a style sheet polishes the label anew even where it is the same.
    if (valueLabel->styleSheet() != style)
        valueLabel->setStyleSheet(style);
}
