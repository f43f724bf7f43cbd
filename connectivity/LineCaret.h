#pragma once

#include <QPixmap>
#include <QWidget>

class QLineEdit;

/// What stands for the caret in a line that is filled by the on-screen keyboard: a steady bar
/// behind the last character, and in a password line the dots that mask the characters, whose
/// shape in a font differs from device to device.
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
    QLineEdit *edit;
    QPixmap dot;
};
