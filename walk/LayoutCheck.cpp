#include "walk/LayoutCheck.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QFontMetrics>
#include <QGraphicsProxyWidget>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTextDocument>
#include <algorithm>

namespace {
constexpr int smallestTouch = 48;

// A widget and where it stands on the screen, cut to what its ancestors show of it.
struct Placed
{
    QWidget *widget;
    QRect whole;
    QRect seen;
};

QRect seenPart(QWidget *widget, QWidget *root)
{
    QRect part(widget->mapTo(root, QPoint(0, 0)), widget->size());
    for (QWidget *ancestor = widget->parentWidget(); ancestor && ancestor != root;
         ancestor = ancestor->parentWidget())
        part &= QRect(ancestor->mapTo(root, QPoint(0, 0)), ancestor->size());
    return part & root->rect();
}

// A finger, or the eye, meets the widget and nothing that covers it.
bool isOnTop(const Placed &placed, QWidget *root)
{
    for (const QPoint point : {placed.seen.center(), placed.seen.topLeft() + QPoint(3, 3),
                               placed.seen.bottomRight() - QPoint(3, 3)}) {
        QWidget *hit = root->childAt(point);
        while (hit && hit != placed.widget)
            hit = hit->parentWidget();
        if (hit)
            return true;
    }
    return false;
}

void collect(QWidget *root, QList<Placed> &found)
{
    for (auto *widget : root->findChildren<QWidget *>()) {
        if (!widget->isVisible())
            continue;
        const Placed placed{widget, QRect(widget->mapTo(root, QPoint(0, 0)), widget->size()),
                            seenPart(widget, root)};
        if (!placed.seen.isEmpty() && isOnTop(placed, root))
            found.append(placed);
        if (auto *view = qobject_cast<QGraphicsView *>(widget); view && view->scene()) {
            for (QGraphicsItem *item : view->scene()->items()) {
                auto *proxy = qgraphicsitem_cast<QGraphicsProxyWidget *>(item);
                if (proxy && proxy->widget() && proxy->isVisible() &&
                    proxy->pos().toPoint() == QPoint(0, 0))
                    collect(proxy->widget(), found);
            }
        }
    }
}

bool reacts(const QWidget *widget)
{
    if (qobject_cast<const QScrollBar *>(widget))
        return false;
    return widget->isEnabled() &&
           (qobject_cast<const QAbstractButton *>(widget) ||
            qobject_cast<const QAbstractSlider *>(widget) || widget->inherits("TouchFrame"));
}

QString nameOf(const QWidget *widget)
{
    return QString::fromLatin1(widget->metaObject()->className()) + QLatin1Char(' ') +
           widget->objectName();
}

QString cutText(const Placed &placed)
{
    QString text;
    int margins = 0;
    bool wraps = false;
    if (auto *label = qobject_cast<QLabel *>(placed.widget)) {
        text = label->text();
        margins = 2 * label->margin();
        wraps = label->wordWrap();
    } else if (auto *button = qobject_cast<QAbstractButton *>(placed.widget)) {
        text = button->text();
    }
    if (text.isEmpty())
        return {};
    QTextDocument document;
    document.setDefaultFont(placed.widget->font());
    document.setDocumentMargin(0);
    if (Qt::mightBeRichText(text))
        document.setHtml(text);
    else
        document.setPlainText(text);
    if (wraps)
        document.setTextWidth(placed.whole.width());
    const double width = document.idealWidth() + margins;
    // The line box of the font is taller than what it draws: a cut begins below its ink.
    const QFontMetrics metrics(placed.widget->font());
    const double height = document.size().height() - metrics.height() +
                          metrics.tightBoundingRect(document.toPlainText()).height();
    if (width <= placed.whole.width() + 1 && height <= placed.whole.height() + 1)
        return {};
    return QStringLiteral("text cut: %1 \"%2\" needs %3 x %4, has %5 x %6")
        .arg(nameOf(placed.widget), document.toPlainText())
        .arg(width)
        .arg(height)
        .arg(placed.whole.width())
        .arg(placed.whole.height());
}
} // namespace

QStringList layoutFindings(QWidget *window)
{
    QList<Placed> widgets;
    collect(window, widgets);

    QStringList findings;
    QList<Placed> touchable;
    for (const Placed &placed : widgets) {
        const QString cut = cutText(placed);
        if (!cut.isEmpty())
            findings.append(cut);
        if (!reacts(placed.widget))
            continue;
        if (std::min(placed.whole.width(), placed.whole.height()) < smallestTouch)
            findings.append(QStringLiteral("too small for a finger: %1, %2 x %3")
                                .arg(nameOf(placed.widget))
                                .arg(placed.whole.width())
                                .arg(placed.whole.height()));
        touchable.append(placed);
    }
    for (qsizetype first = 0; first < touchable.size(); ++first) {
        for (qsizetype second = first + 1; second < touchable.size(); ++second) {
            const Placed &one = touchable[first];
            const Placed &other = touchable[second];
            const bool nested =
                one.widget->isAncestorOf(other.widget) || other.widget->isAncestorOf(one.widget);
            if (!nested && one.seen.intersects(other.seen))
                findings.append(QStringLiteral("overlap: %1 and %2")
                                    .arg(nameOf(one.widget), nameOf(other.widget)));
        }
    }
    return findings;
}
