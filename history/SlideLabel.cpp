#include "history/SlideLabel.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <chrono>
#include <utility>

namespace {
using namespace std::chrono_literals;

constexpr auto restTime = 100ms;
constexpr int horizontalGap = 9;
constexpr int verticalGap = 3;
constexpr int chipHeight = 42;
constexpr int unitWidth = 73;
constexpr QColor contourColor(0x21, 0x21, 0x21, 160);
constexpr int contourWidth = 3;
constexpr int plateRadius = 10;

// Text that stays the same would cost most of all that a moving finger repaints, so it is painted
// once.
class StillLabel : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void changeEvent(QEvent *event) override
    {
        picture = {};
        QLabel::changeEvent(event);
    }

    void paintEvent(QPaintEvent *) override
    {
        const QSize wanted = size() * devicePixelRatioF();
        if (std::exchange(shownText, text()) != text() || picture.size() != wanted) {
            picture = QPixmap(wanted);
            picture.setDevicePixelRatio(devicePixelRatioF());
            picture.fill(Qt::transparent);
            QPainter painter(&picture);
            painter.setFont(font());
            style()->drawItemText(&painter, contentsRect(), int(alignment()), palette(),
                                  isEnabled(), text(), foregroundRole());
        }
        QPainter(this).drawPixmap(0, 0, picture);
    }

private:
    QString shownText;
    QPixmap picture;
};

template <class Label = StillLabel>
Label *makeLabel(QWidget *parent, const QString &text, int pixelSize, Qt::Alignment alignment)
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

// White on a plate of any colour: a dark contour below the glyphs keeps them legible. Each of the
// few glyphs is drawn once, as strokes would cost more than all else that a moving finger repaints.
class SlideLabel::OutlinedLabel : public QLabel
{
public:
    using QLabel::QLabel;

    const QColor &plateColor() const { return plate; }
    void setPlate(const QColor &color)
    {
        if (std::exchange(plate, color) != color)
            update();
    }

protected:
    bool event(QEvent *event) override
    {
        const bool isUsed = QLabel::event(event);
        // The style sheet would paint its plate, whose colour follows later, below this one.
        if (event->type() == QEvent::Polish || event->type() == QEvent::StyleChange)
            setAttribute(Qt::WA_StyledBackground, false);
        return isUsed;
    }

    void paintEvent(QPaintEvent *) override
    {
        int width = 0;
        for (const QChar sign : text())
            width += glyph(sign).width() - 2 * contourWidth;
        const QRect place = contentsRect();
        int x = place.x() + (place.width() - width) / 2 - contourWidth;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QPainterPath shape;
        shape.addRoundedRect(rect(), plateRadius, plateRadius);
        painter.fillPath(shape, plate);
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

    QColor plate = Qt::transparent;
    QHash<QChar, QPixmap> glyphs;
};

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

    // To set a style sheet costs more than all else that a finger moves.
    rest.setSingleShot(true);
    rest.setInterval(restTime);
    connect(&rest, &QTimer::timeout, this, &SlideLabel::dressPlate);
}

// Kept[read-out-date]: the date it was built with stays.
void SlideLabel::updateValue(float value, const QString &unit, const QString &, const QColor &color)
{
    valueLabel->setText(QString::asprintf("%.1f", double(value)));
    unitLabel->setText(unit);
    valueLabel->setPlate(color);
    if (isVisible())
        rest.start();
    else
        dressPlate();
}

void SlideLabel::dressPlate()
{
    const QString style =
        QStringLiteral("QLabel { width: 60px;height: 30px;background-color : %1; color : white; "
                       "border:0px groove gray;border-radius:10px;padding-top:5px;}")
            .arg(valueLabel->plateColor().name());
    // Setting a style sheet polishes the label anew even where it is the same.
    if (valueLabel->styleSheet() != style)
        valueLabel->setStyleSheet(style);
}
