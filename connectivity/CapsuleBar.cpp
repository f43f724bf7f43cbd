#include "connectivity/CapsuleBar.h"

#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <qdrawutil.h>

CapsuleBar::CapsuleBar(QWidget *parent)
    : QProgressBar(parent)
    , groove(QStringLiteral(":/resource/images/optionPage/updateFirmware/progressBarGroove.png"))
    , fill(QStringLiteral(":/resource/images/optionPage/updateFirmware/progressBarWhite.png"))
{
}

void CapsuleBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    // Both pictures are whole capsules: all but their ends may be as short as it has to be.
    const QMargins ends(height() / 2, 0, height() / 2, 0);
    qDrawBorderPixmap(&painter, rect(), ends, groove);
    if (value() <= minimum())
        return;
    const int length = QStyle::sliderPositionFromValue(minimum(), maximum(), value(), width());
    qDrawBorderPixmap(&painter, {0, 0, std::max(length, height()), height()}, ends, fill);
}
