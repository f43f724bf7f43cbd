#pragma once

class QAbstractButton;
class QCheckBox;

/// Lights the captions beside @p box: @p on while it is checked, @p off while it is not. From now
/// on and at every change. A lit caption is checked, which the style sheet shows by its role. The
/// captions are no controls: a tap passes through them. GUI thread; the captions must live as long
/// as the switch.
void captionSwitch(QCheckBox *box, QAbstractButton *off, QAbstractButton *on);
