#include "pages/SwitchCaptions.h"

#include <QCheckBox>

namespace {
void lightCaptions(bool checked, QWidget *off, QWidget *on)
{
    const QString dim = QStringLiteral("color: rgba(255, 255, 255, 50%);");
    off->setStyleSheet(checked ? dim : QStringLiteral("color: #ffffff;"));
    on->setStyleSheet(checked ? QStringLiteral("color: #00e5ff;") : dim);
}
} // namespace

void captionSwitch(QCheckBox *box, QWidget *off, QWidget *on)
{
    for (QWidget *caption : {off, on})
        caption->setAttribute(Qt::WA_TransparentForMouseEvents);
    lightCaptions(box->isChecked(), off, on);
    QObject::connect(box, &QCheckBox::toggled, box,
                     [off, on](bool checked) { lightCaptions(checked, off, on); });
}
