#pragma once

#include <QLabel>

/// A label whose plain text keeps a distance of its own between the lines, which QLabel has not. A
/// line ends at a line feed and, where words wrap, behind a comma and blank. GUI thread.
class SpacedLabel : public QLabel
{
    Q_OBJECT
    /// From one line to the next, in px.
    Q_PROPERTY(int pitch MEMBER pitch)

public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int pitch = 40;
};
