#pragma once

#include "pages/TouchFrame.h"

/// The tile of the settings menu and of the main screen: a plate of its own, whose edge lights up
/// with it. GUI thread.
class OptionFrame : public TouchFrame
{
    Q_OBJECT

public:
    using TouchFrame::TouchFrame;

protected:
    void paintLight(QPainter &painter, int radius) const override;
};
