#include "pages/SwitchCaptions.h"

#include <QCheckBox>

void captionSwitch(QCheckBox *box, QAbstractButton *off, QAbstractButton *on)
{
    for (QAbstractButton *caption : {off, on}) {
        caption->setAttribute(Qt::WA_TransparentForMouseEvents);
        caption->setCheckable(true);
    }
    const auto light = [off, on](bool checked) {
        off->setChecked(!checked);
        on->setChecked(checked);
    };
    light(box->isChecked());
    QObject::connect(box, &QCheckBox::toggled, box, light);
}
