#include "pages/ScrollThumb.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionSlider>

namespace {
// The style sheet asks for the rule of each part of a bar at every painting, also of those that
// show nothing.
class ThumbPainter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::StyleChange)
            picture = {};
        if (event->type() == QEvent::Paint)
            paint(static_cast<QScrollBar *>(watched));
        return event->type() == QEvent::Paint;
    }

private:
    void paint(QScrollBar *bar)
    {
        QStyleOptionSlider option;
        option.initFrom(bar);
        option.state.setFlag(QStyle::State_Horizontal, false);
        option.orientation = Qt::Vertical;
        option.minimum = bar->minimum();
        option.maximum = bar->maximum();
        option.pageStep = bar->pageStep();
        option.sliderPosition = option.sliderValue = bar->value();
        const QRect thumb = bar->style()->subControlRect(QStyle::CC_ScrollBar, &option,
                                                         QStyle::SC_ScrollBarSlider, bar);
        if (picture.size() != thumb.size()) {
            picture = QPixmap(thumb.size());
            picture.fill(Qt::transparent);
            QPainter painter(&picture);
            painter.translate(-thumb.topLeft());
            bar->style()->drawComplexControl(QStyle::CC_ScrollBar, &option, &painter, bar);
        }
        QPainter(bar).drawPixmap(thumb.topLeft(), picture);
    }

    QPixmap picture;
};
} // namespace

void lightenThumb(QScrollBar *bar)
{
    bar->installEventFilter(new ThumbPainter(bar));
}

void showScroll(QAbstractScrollArea *list, QScrollBar *thumb)
{
    thumb->setAttribute(Qt::WA_TransparentForMouseEvents);
    thumb->hide();
    lightenThumb(thumb);
    QScrollBar *source = list->verticalScrollBar();
    QObject::connect(source, &QScrollBar::rangeChanged, thumb, [source, thumb] {
        thumb->setPageStep(source->pageStep());
        thumb->setRange(source->minimum(), source->maximum());
        thumb->setVisible(source->maximum() > source->minimum());
    });
    QObject::connect(source, &QScrollBar::valueChanged, thumb, &QScrollBar::setValue);
}
