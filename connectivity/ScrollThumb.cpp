#include "connectivity/ScrollThumb.h"

#include <QAbstractScrollArea>
#include <QScrollBar>

void showScroll(QAbstractScrollArea *list, QScrollBar *thumb)
{
    thumb->setAttribute(Qt::WA_TransparentForMouseEvents);
    thumb->hide();
    QScrollBar *source = list->verticalScrollBar();
    QObject::connect(source, &QScrollBar::rangeChanged, thumb, [source, thumb] {
        thumb->setPageStep(source->pageStep());
        thumb->setRange(source->minimum(), source->maximum());
        thumb->setVisible(source->maximum() > source->minimum());
    });
    QObject::connect(source, &QScrollBar::valueChanged, thumb, &QScrollBar::setValue);
}
