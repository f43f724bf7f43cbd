#include "connectivity/LineCaret.h"

#include "pages/Look.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QLineEdit>
#include <QPainter>
#include <QtMath>
#include <algorithm>

namespace {
constexpr int caretWidth = 2;
constexpr int caretHeight = 34;
// The text stands a little below the middle of the line, near the rule under it.
constexpr int textDrop = 2;
constexpr int dotPitch = 19;
constexpr int dotSize = 10;
// From the left edge of the line to the first dot, and from the last glyph to the caret.
constexpr int dotsLeft = 2;
constexpr int caretGap = 5;
// What a line leaves free at its left by itself.
constexpr int ownMargin = 2;

// A picture, as a circle is costly to fill and every letter typed repaints the whole line.
QPixmap dotPicture()
{
    QPixmap picture(dotSize, dotSize);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(picture.rect());
    return picture;
}

// Letters begin where dots do, which their own left bearing brings about; what stands for a text
// keeps off the caret before it.
void leaveRoom(QLineEdit *line)
{
    const int left = line->text().isEmpty() ? caretWidth + caretGap : 0;
    line->setTextMargins(left - ownMargin, 0, caretWidth + caretGap, 0);
}
} // namespace

LineCaret::LineCaret(QLineEdit *line)
    : QWidget(line)
    , edit(line)
    , dot(dotPicture())
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    line->setAttribute(Qt::WA_TransparentForMouseEvents);
    line->setFocusPolicy(Qt::NoFocus);
    line->clearFocus();
    line->installEventFilter(this);
    leaveRoom(line);
    connect(line, &QLineEdit::textChanged, this, [line] { leaveRoom(line); });
    setGeometry(line->rect());
    show();
}

bool LineCaret::eventFilter(QObject * /*watched*/, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(edit->rect());
    // The mask of the font, which nobody sees, is costly to draw.
    return event->type() == QEvent::Paint && isMasked();
}

bool LineCaret::isMasked() const
{
    return edit->echoMode() == QLineEdit::Password && !edit->text().isEmpty();
}

int LineCaret::textEnd() const
{
    const QString text = edit->text();
    if (text.isEmpty())
        return -caretGap;
    // A blank has nothing to keep off from but its own width.
    const QChar last = text.back();
    const int next = edit->inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x();
    return last.isSpace() ? next : qCeil(next - QFontMetricsF(edit->font()).rightBearing(last));
}

void LineCaret::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int middleLine = height() / 2 + textDrop;
    const int caretTop = middleLine - caretHeight / 2;
    const int dots = isMasked() ? int(edit->text().size()) : 0;
    const int end = dots > 0 ? dotsLeft + (dots - 1) * dotPitch + dotSize : textEnd();
    const int caretLeft = std::min(end + caretGap, width() - caretWidth);
    painter.fillRect(caretLeft, caretTop, caretWidth, caretHeight, Look::accent);
    // A long password runs out at the left, so that its end stays in sight.
    int left = caretLeft - caretGap - dotSize;
    for (int i = 0; i < dots && left > -dotSize; ++i, left -= dotPitch)
        painter.drawPixmap(left, middleLine - dotSize / 2, dot);
}
