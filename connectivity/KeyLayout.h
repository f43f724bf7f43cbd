#pragma once

#include <QList>
#include <QRect>
#include <QSize>
#include <QString>

/// The three faces of the on-screen keyboard, in the order of its stack.
enum class KeyPage { Lowercase, Uppercase, Symbol };

/// The size of every key that types its own text, in px.
inline constexpr QSize characterKeySize(84, 60);

/// What a key does, and with it how it looks.
enum class KeyKind { Character, Shift, ShiftOn, Delete, Function, Blank, Enter };

/// One key and where it lies.
struct KeyPlace
{
    KeyKind kind;
    /// Name of a wide key's button ("button_delete_2"); empty for a key that types its own text.
    QString objectName;
    /// Source text of the label, not translated. A wide key with an icon has none.
    QString text;
    /// The whole cell in the coordinates of the keyboard, in px. Cells of a row abut.
    QRect area;
};

/// Lists the keys of @p page, row by row from the top left.
QList<KeyPlace> keyPlaces(KeyPage page);
