#pragma once

#include <QPixmap>
#include <QWidget>

class QLineEdit;

/// What stands for the caret in a line that is filled by the on-screen keyboard: a steady bar
/// behind the last character, or before the words that say what belongs in an empty line, and in a
/// password line the dots that mask the characters, whose shape in a font differs from device to
/// device.
///
/// Makes @p line deaf to focus and touch, since the keyboard always types at the end. Owned by the
/// line. GUI thread.
class LineCaret : public QWidget
{
public:
    explicit LineCaret(QLineEdit *line);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// Tells whether dots stand for the characters.
    bool isMasked() const;
    /// Returns where the last letter ends.
    int textEnd() const;

    QLineEdit *edit;
    QPixmap dot;
};
