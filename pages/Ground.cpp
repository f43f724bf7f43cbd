#include "pages/Ground.h"

#include "pages/Look.h"

#include <QPaintEvent>
#include <QPainter>
#include <QWidget>

namespace {
const QString painterName = QStringLiteral("groundPainter");

// Neither the palette nor the style sheet serves: the sheet takes a widget's own palette away
// whenever it is applied anew, and what the sheet paints is not opaque in Qt's eyes.
class GroundPainter : public QObject
{
public:
    explicit GroundPainter(QWidget *page)
        : QObject(page)
    {
        setObjectName(painterName);
        page->setAutoFillBackground(false);
        page->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            auto *page = static_cast<QWidget *>(watched);
            QPainter(page).fillRect(static_cast<QPaintEvent *>(event)->rect(), Look::ground);
            // Only now: what is opaque when it is shown is painted twice, alone and with its
            // children.
            page->setAttribute(Qt::WA_OpaquePaintEvent);
        } else if (event->type() == QEvent::Hide) {
            static_cast<QWidget *>(watched)->setAttribute(Qt::WA_OpaquePaintEvent, false);
        }
        return false;
    }
};
} // namespace

void fillGround(QWidget *page)
{
    // A page that exists once comes by at every showing.
    if (!page->findChild<QObject *>(painterName, Qt::FindDirectChildrenOnly))
        new GroundPainter(page);
}
