#include "connectivity/KeyLayout.h"

namespace {
constexpr int firstRowTop = 176;
constexpr int rowHeight = characterKeySize.height();
constexpr const char *spaceText = QT_TRANSLATE_NOOP("KeyBorad", "空格");
constexpr const char *doneText = QT_TRANSLATE_NOOP("KeyBorad", "完成");

struct WideKey
{
    KeyKind kind;
    const char *objectName;
    const char *text = "";
};

struct KeyRow
{
    int left;
    QList<WideKey> before;
    const char *characters;
    QList<WideKey> after;
};

const QList<KeyRow> lowercaseRows{
    {7, {}, "1234567890", {}},
    {7, {}, "qwertyuiop", {}},
    {49, {}, "asdfghjkl", {}},
    {4, {{KeyKind::Shift, "button_shiftNormal"}}, "zxcvbnm", {{KeyKind::Delete, "button_delete"}}},
    {4,
     {{KeyKind::Function, "button_symbol", "#+="},
      {KeyKind::Blank, "button_blank", spaceText},
      {KeyKind::Enter, "button_enter", doneText}},
     "",
     {}},
};

const QList<KeyRow> uppercaseRows{
    {7, {}, "1234567890", {}},
    {7, {}, "QWERTYUIOP", {}},
    {49, {}, "ASDFGHJKL", {}},
    {4,
     {{KeyKind::ShiftOn, "button_shiftChecked"}},
     "ZXCVBNM",
     {{KeyKind::Delete, "button_delete_2"}}},
    {4,
     {{KeyKind::Function, "button_symbol_2", "#+="},
      {KeyKind::Blank, "button_blank_2", spaceText},
      {KeyKind::Enter, "button_enter_2", doneText}},
     "",
     {}},
};

const QList<KeyRow> symbolRows{
    {91, {}, "~@#$%^&_", {}},
    {91, {}, "`|\\/*+-=", {}},
    {49, {}, "()[]{}<>'", {}},
    {68, {}, "\":;?!,.", {{KeyKind::Delete, "button_delete_3"}}},
    {4,
     {{KeyKind::Function, "button_character", "abc"},
      {KeyKind::Blank, "button_blank_3", spaceText},
      {KeyKind::Enter, "button_enter_3", doneText}},
     "",
     {}},
};

const QList<KeyRow> &rowsOf(KeyPage page)
{
    switch (page) {
    case KeyPage::Uppercase:
        return uppercaseRows;
    case KeyPage::Symbol:
        return symbolRows;
    case KeyPage::Lowercase:
        break;
    }
    return lowercaseRows;
}

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

// Kept[double-ampersand]: a single one would be swallowed as the mark of a shortcut, and so two are
// typed.
QString labelOf(char character)
{
    return character == '&' ? QStringLiteral("&&") : QString(QLatin1Char(character));
}
} // namespace

QList<KeyPlace> keyPlaces(KeyPage page)
{
    QList<KeyPlace> places;
    int top = firstRowTop;
    for (const KeyRow &row : rowsOf(page)) {
        int left = row.left;
        const auto place = [&](KeyKind kind, const QString &objectName, const QString &text) {
            places.append({kind, objectName, text, QRect(left, top, widthOf(kind), rowHeight)});
            left += widthOf(kind);
        };
        const auto placeWide = [&place](const QList<WideKey> &keys) {
            for (const WideKey &key : keys)
                place(key.kind, QLatin1String(key.objectName), QString::fromUtf8(key.text));
        };
        placeWide(row.before);
        for (const char *character = row.characters; *character; ++character)
            place(KeyKind::Character, {}, labelOf(*character));
        placeWide(row.after);
        top += rowHeight;
    }
    return places;
}
