#include "connectivity/KeyLayout.h"

#include "pages/Look.h"

namespace {
constexpr int firstRowTop = 176;

int widthOf(KeyKind kind)
{
    switch (kind) {
    case KeyKind::Character:
        return characterKeySize.width();
    case KeyKind::Shift:
    case KeyKind::ShiftOn:
    case KeyKind::Delete:
        return 129;
    case KeyKind::Function:
    case KeyKind::Enter:
        return 213;
    case KeyKind::Blank:
        return 420;
    }
    return 0;
}

KeyPlace key(KeyKind kind, const QString &objectName, const QString &text = {})
{
    return {.kind = kind,
            .objectName = objectName,
            .text = text,
            .area = QRect(QPoint(), QSize(widthOf(kind), characterKeySize.height()))};
}

QList<KeyPlace> characters(const QString &labels)
{
    QList<KeyPlace> row;
    // Kept[double-ampersand]: a single one would be swallowed as the mark of a shortcut, and so two
    // are typed.
    for (const QChar label : labels)
        row.append(key(KeyKind::Character, {}, QString(label == u'&' ? 2 : 1, label)));
    return row;
}

// Keys that stand on every page are told apart by its number.
KeyPlace numbered(KeyPage page, KeyKind kind, const QString &name, const QString &text = {})
{
    if (page == KeyPage::Lowercase)
        return key(kind, name, text);
    return key(kind, QStringLiteral("%1_%2").arg(name).arg(int(page) + 1), text);
}

QList<KeyPlace> bottomRow(KeyPage page, const KeyPlace &function)
{
    return {function,
            numbered(page, KeyKind::Blank, QStringLiteral("button_blank"),
                     QString::fromUtf8(QT_TRANSLATE_NOOP("KeyBorad", "空格"))),
            numbered(page, KeyKind::Enter, QStringLiteral("button_enter"),
                     QString::fromUtf8(QT_TRANSLATE_NOOP("KeyBorad", "完成")))};
}

QList<QList<KeyPlace>> rowsOf(KeyPage page)
{
    const KeyPlace erase = numbered(page, KeyKind::Delete, QStringLiteral("button_delete"));
    if (page == KeyPage::Symbol)
        return {characters(QStringLiteral("~@#$%^&_")), characters(QStringLiteral("`|\\/*+-=")),
                characters(QStringLiteral("()[]{}<>'")),
                characters(QStringLiteral("\":;?!,.")) << erase,
                bottomRow(page, key(KeyKind::Function, QStringLiteral("button_character"),
                                    QStringLiteral("abc")))};
    const bool isUpper = page == KeyPage::Uppercase;
    const auto letters = [isUpper](const QString &row) {
        return characters(isUpper ? row.toUpper() : row);
    };
    const KeyPlace shift = isUpper ? key(KeyKind::ShiftOn, QStringLiteral("button_shiftChecked"))
                                   : key(KeyKind::Shift, QStringLiteral("button_shiftNormal"));
    return {letters(QStringLiteral("1234567890")), letters(QStringLiteral("qwertyuiop")),
            letters(QStringLiteral("asdfghjkl")),
            QList{shift} + letters(QStringLiteral("zxcvbnm")) << erase,
            bottomRow(page, numbered(page, KeyKind::Function, QStringLiteral("button_symbol"),
                                     QStringLiteral("#+=")))};
}
} // namespace

QList<KeyPlace> keyPlaces(KeyPage page)
{
    QList<KeyPlace> places;
    int top = firstRowTop;
    for (QList<KeyPlace> &row : rowsOf(page)) {
        int width = 0;
        for (const KeyPlace &place : row)
            width += place.area.width();
        QPoint next((Look::screen.width() - width) / 2, top);
        for (KeyPlace &place : row) {
            place.area.moveTopLeft(next);
            next.rx() += place.area.width();
        }
        places.append(row);
        top += characterKeySize.height();
    }
    return places;
}
