#include "pages/ScrolledPicture.h"

#include "pages/Look.h"

#include <QCoreApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>
#include <span>

namespace {
// Drawn together, in px: a row of tiles costs the same however little of it has come in.
constexpr int rowsAtOnce = 96;

// A list paints what is in view. Other contents are widgets, and can be drawn beyond it.
QWidget *contentOf(QAbstractScrollArea *area)
{
    auto *scrollArea = qobject_cast<QScrollArea *>(area);
    return scrollArea ? scrollArea->widget() : area->viewport();
}
} // namespace

ScrolledPicture::ScrolledPicture(QAbstractScrollArea *scrolled)
    : QWidget(scrolled)
    , area(scrolled)
    , content(contentOf(scrolled))
    , picture(scrolled->width(), std::min(content->height(), 2 * scrolled->height()))
{
    picture.fill(Look::ground);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(area->rect());
    window()->installEventFilter(this);
}

void ScrolledPicture::scrollTo(int value)
{
    // What has changed so far is painted where it still lies, and told to paintEvent().
    QCoreApplication::sendPostedEvents(window(), QEvent::UpdateRequest);
    const bool isKnown = (QRegion(view()) - drawn).isEmpty();
    if (drawn.isEmpty())
        ink.setCoords(width(), 0, -1, height() - 1);
    if (isHidden())
        takePlace();
    // Opaque for this step, so that nothing below is painted, and what scrolls there does not ask
    // for it: it would ask for all columns.
    setAttribute(Qt::WA_OpaquePaintEvent);
    const bool isStill = content->testAttribute(Qt::WA_UpdatesDisabled);
    content->setAttribute(Qt::WA_UpdatesDisabled);
    area->verticalScrollBar()->setValue(value);
    content->setAttribute(Qt::WA_UpdatesDisabled, isStill);
    drawMissing();
    update(isKnown ? ink : rect());
    QCoreApplication::sendPostedEvents(window(), QEvent::UpdateRequest);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
}

void ScrolledPicture::takePlace()
{
    // The bars come first among the parts of the area, and are below all others.
    QWidget *bar = area->verticalScrollBar()->parentWidget();
    bar->raise();
    stackUnder(bar);
    show();
    // A widget that is shown is painted once more from the event loop, here with all that lies
    // below.
    QCoreApplication::removePostedEvents(this, QEvent::UpdateLater);
}

bool ScrolledPicture::eventFilter(QObject * /*watched*/, QEvent *event)
{
    // Something has changed. What is out of view is not painted, so it may be that.
    if (event->type() == QEvent::UpdateRequest && !isMoving())
        drawn &= view();
    return false;
}

QRect ScrolledPicture::view() const
{
    return rect().translated(0, area->verticalScrollBar()->value());
}

void ScrolledPicture::drawMissing()
{
    const int origin = view().top() + content->y();
    QRect wanted = view();
    wanted.setTop(wanted.top() / rowsAtOnce * rowsAtOnce);
    wanted.setBottom((wanted.bottom() / rowsAtOnce + 1) * rowsAtOnce - 1);
    wanted &= QRect(0, origin, width(), content->height());
    if (wanted.height() > picture.height())
        wanted = view();
    const int rows = picture.height();
    for (int top = wanted.top() / rows * rows; top <= wanted.bottom(); top += rows) {
        // One at a time: a row that reaches into two of them would be blended twice.
        for (const QRect &part : (QRegion(wanted) - drawn) & QRect(0, top, width(), rows)) {
            const QRect place = part.translated(0, -top);
            QPainter(&picture).fillRect(place, Look::ground);
            content->render(&picture, place.topLeft(), part.translated(0, -origin), DrawChildren);
            findInk(place);
            // Where it lies now, others have lain.
            drawn -= part.translated(0, rows);
            drawn -= part.translated(0, -rows);
        }
    }
    drawn += wanted;
}

void ScrolledPicture::findInk(const QRect &rows)
{
    const QImage image = picture.toImage();
    if (image.depth() != 32) {
        ink = rect();
        return;
    }
    const auto isGround = [ground = Look::ground.rgb()](QRgb dot) { return dot == ground; };
    for (int y = rows.top(); y <= rows.bottom(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        const std::span left(row, std::size_t(ink.left()));
        ink.setLeft(int(std::ranges::find_if_not(left, isGround) - left.begin()));
        const std::span right(row + ink.right() + 1, row + width());
        const auto last = std::find_if_not(right.rbegin(), right.rend(), isGround);
        ink.setRight(width() - 1 - int(last - right.rbegin()));
    }
}

void ScrolledPicture::paintEvent(QPaintEvent *event)
{
    const QRect shown = view();
    if (!isMoving()) {
        drawn -= event->region().translated(shown.topLeft());
        return;
    }
    QPainter painter(this);
    const int rows = picture.height();
    for (int top = shown.top() / rows * rows; top <= shown.bottom(); top += rows)
        painter.drawPixmap(0, top - shown.top(), picture);
}
