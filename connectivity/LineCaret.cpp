#include "connectivity/LineCaret.h"

#include "pages/Look.h"

#include <QEvent>
#include <QLineEdit>
#include <QPainter>
#include <algorithm>

namespace {
constexpr int caretWidth = 2;
constexpr int caretHeight = 34;
// The text stands a little below the middle of the line, near the rule under it.
constexpr int textDrop = 2;
constexpr int dotPitch = 19;
constexpr int dotSize = 10;
// From the left edge of a dot's cell to the dot, and from the end of the last cell to the caret.
constexpr int dotLeft = 1;
constexpr int caretGap = 2;

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
    setGeometry(line->rect());
    show();
}

bool LineCaret::eventFilter(QObject * /*watched*/, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(edit->rect());
    // The mask of the font, which nobody sees, is costly to draw.
    return event->type() == QEvent::Paint && edit->echoMode() == QLineEdit::Password;
}

void LineCaret::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int middleLine = height() / 2 + textDrop;
    const int caretTop = middleLine - caretHeight / 2;
    if (edit->echoMode() != QLineEdit::Password) {
        const QRect cursor = edit->inputMethodQuery(Qt::ImCursorRectangle).toRect();
        const int left = std::min(cursor.center().x(), width() - caretWidth);
        painter.fillRect(left, caretTop, caretWidth, caretHeight, Look::accent);
        return;
    }

    // A long password runs out at the left, so that its end stays in sight.
    const int dots = int(edit->text().size());
    const int caretLeft = std::min(dots * dotPitch + caretGap, width() - caretWidth);
    painter.fillRect(caretLeft, caretTop, caretWidth, caretHeight, Look::accent);
    int left = caretLeft - caretGap - dotPitch + dotLeft;
    for (int i = 0; i < dots && left > -dotSize; ++i, left -= dotPitch)
        painter.drawPixmap(left, middleLine - dotSize / 2, dot);
}
