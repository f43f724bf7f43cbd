#include "pages/Ground.h"

#include "pages/Look.h"

#include <QPaintEvent>
#include <QPainter>
#include <QWidget>

namespace {
// Neither the palette nor the style sheet serves: the sheet takes a widget's own palette away
// whenever it is applied anew, and what the sheet paints is not opaque in Qt's eyes.
class GroundPainter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            auto *page = static_cast<QWidget *>(watched);
            QPainter(page).fillRect(static_cast<QPaintEvent *>(event)->rect(), Look::ground);
        }
        return false;
    }
};
} // namespace

void fillGround(QWidget *page)
{
    // A page that exists once comes by at every showing.
    if (page->testAttribute(Qt::WA_OpaquePaintEvent))
        return;
    page->setAttribute(Qt::WA_OpaquePaintEvent);
    page->installEventFilter(new GroundPainter(page));
}
