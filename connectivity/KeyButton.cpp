#include "connectivity/KeyButton.h"

#include "pages/Look.h"

#include <QEvent>
#include <QMap>
#include <QPainter>
#include <QPointer>

// How a kind of key looks; the pictures fill the whole cell.
struct KeyLook
{
    QPixmap normal;
    QPixmap pressed;
    QColor text;

    static const KeyLook &of(KeyKind kind);
};

namespace {
constexpr QColor caption(255, 255, 255, 180);
constexpr QSize iconSizeOfKeys(32, 32);

const QFont &keyFont()
{
    static const QFont font = [] {
        QFont family(QStringLiteral("Helvetica"));
        family.setPixelSize(24);
        return family;
    }();
    return font;
}

QPixmap picture(const char *name)
{
    return QPixmap(
        QStringLiteral(":/resource/images/optionPage/keyboard/%1.png").arg(QLatin1String(name)));
}

QPixmap characterPlate()
{
    constexpr QRect cell(QPoint(), characterKeySize);
    QPixmap plate(cell.size());
    plate.fill(Qt::transparent);
    QPainter painter(&plate);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 22));
    painter.drawRoundedRect(cell.adjusted(3, 3, -3, -3), 9, 9);
    return plate;
}
} // namespace

const KeyLook &KeyLook::of(KeyKind kind)
{
    static const QPixmap shiftNormal = picture("shiftNormal");
    static const QPixmap shiftHover = picture("shiftHover");
    static const QPixmap enterNormal = picture("enterNormal");
    static const QPixmap enterHover = picture("enterHover");
    static const QMap<KeyKind, KeyLook> looks{
        {KeyKind::Character, {characterPlate(), picture("keyboard Press"), Qt::white}},
        {KeyKind::Shift, {shiftNormal, shiftHover, Qt::white}},
        {KeyKind::ShiftOn, {shiftHover, shiftNormal, Qt::white}},
        {KeyKind::Delete, {shiftNormal, shiftHover, Qt::white}},
        {KeyKind::Function, {enterNormal, enterHover, Qt::white}},
        {KeyKind::Blank, {picture("blankNormal"), picture("blankHover"), caption}},
        {KeyKind::Enter, {enterNormal, enterHover, Look::accent}},
    };
    return *looks.constFind(kind);
}

// A button under construction asks the style sheet for the size of its icon, whose rules are then
// held against all its ancestors: here it has none.
KeyButton::KeyButton(KeyKind kind, QWidget *parent)
    : QPushButton(nullptr)
    , look(KeyLook::of(kind))
{
    setParent(parent);
    setFocusPolicy(Qt::NoFocus);
    setIconSize(iconSizeOfKeys);
}

bool KeyButton::event(QEvent *event)
{
    // Polishing is where the style sheet would get hold of the key.
    if (event->type() == QEvent::Polish)
        return true;
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonRelease)
        return QPushButton::event(event);
    // A button paints itself at once, and what its signals change a second time.
    const QPointer<QWidget> guard(this);
    setUpdatesEnabled(false);
    QPushButton::event(event);
    if (guard)
        setUpdatesEnabled(true);
    return true;
}

bool KeyButton::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void KeyButton::hideEvent(QHideEvent *event)
{
    // A key that goes while it is held down gets no release any more.
    if (isDown()) {
        setDown(false);
        emit released();
    }
    QPushButton::hideEvent(event);
}

void KeyButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, isDown() ? look.pressed : look.normal);
    if (!icon().isNull()) {
        QRect area(QPoint(), iconSize());
        area.moveCenter(rect().center());
        icon().paint(&painter, area);
    }
    // Laid out once: with each press the keys under the enlarged label are painted as well.
    if (laidOut != text()) {
        laidOut = text();
        label.setText(QString(laidOut).replace(QLatin1String("&&"), QLatin1String("&")));
        label.setTextFormat(Qt::PlainText);
        label.prepare({}, keyFont());
    }
    painter.setFont(keyFont());
    painter.setPen(isDown() ? Look::ink : look.text);
    const QSizeF room = QSizeF(size()) - label.size();
    painter.drawStaticText(QPointF(room.width(), room.height()) / 2, label);
}
