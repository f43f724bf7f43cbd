#pragma once

class QCheckBox;
class QWidget;

/// Lights the captions beside @p box: @p on in the accent colour while it is checked, @p off in
/// white while it is not, and the other one at half strength. From now on and at every change.
/// The captions are no controls: a tap passes through them. GUI thread; the captions must live as
/// long as the switch.
void captionSwitch(QCheckBox *box, QWidget *off, QWidget *on);
