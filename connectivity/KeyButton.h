#pragma once

#include "connectivity/KeyLayout.h"

#include <QPushButton>
#include <QStaticText>

struct KeyLook;

/// A key of the on-screen keyboard.
///
/// It paints itself instead of asking the style sheet: a keyboard has over a hundred keys, is built
/// anew for every visit, and must show a press within a few copies of a frame. It never takes the
/// focus, as every press would then repaint a second key. GUI thread.
class KeyButton : public QPushButton
{
    Q_OBJECT

public:
    KeyButton(KeyKind kind, QWidget *parent);

protected:
    bool event(QEvent *event) override;
    bool hitButton(const QPoint &position) const override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    const KeyLook &look;
    QString laidOut;
    QStaticText label;
};
