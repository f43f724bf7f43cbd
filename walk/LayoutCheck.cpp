#include "walk/LayoutCheck.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QFontMetrics>
#include <QGraphicsProxyWidget>
#include <QGraphicsView>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTextDocument>
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {
constexpr int smallestTouch = 48;
constexpr double leastContrast = 4.5;

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
        if (placed.seen.isEmpty() || !isOnTop(placed, root))
            continue;
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
    // A day that is chosen already.
    const auto *day = qobject_cast<const QRadioButton *>(widget);
    if (day && day->isChecked())
        return false;
    return widget->isEnabled() && !widget->property("still").toBool() &&
           (qobject_cast<const QAbstractButton *>(widget) ||
            qobject_cast<const QAbstractSlider *>(widget) || widget->inherits("TouchFrame"));
}

QString nameOf(const QWidget *widget)
{
    const QString name = widget->objectName();
    return QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') +
           (name.isEmpty() ? QLatin1String(widget->parent()->metaObject()->className()) : name);
}

QString textOf(const Placed &placed)
{
    const bool isShown = qobject_cast<const QLabel *>(placed.widget) ||
                         qobject_cast<const QAbstractButton *>(placed.widget);
    return isShown ? placed.widget->property("text").toString() : QString();
}

QString cutText(const Placed &placed)
{
    const QString text = textOf(placed);
    if (text.isEmpty())
        return {};
    const auto *label = qobject_cast<const QLabel *>(placed.widget);
    const int margins = label ? 2 * label->margin() : 0;
    const bool wraps = label && label->wordWrap();
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

double luminance(QRgb colour)
{
    const auto linear = [](int value) { return std::pow((value / 255.0 + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
           0.0722 * linear(qBlue(colour));
}

// Where ink and ground are given: days that are not chosen, the read-out with its day and unit,
// the cities, and what tells of a failed download.
constexpr std::array givenColours{"QRadioButton radio_day", "QLabel SlideLabel", "QLabel label_2",
                                  "QLabel label_locateMiddle", "QLabel label_fail"};

// The strongest ink of a text against what most of its place shows.
QString faintText(const Placed &placed, const QImage &picture)
{
    std::vector<double> light;
    for (int y = placed.seen.top(); y <= placed.seen.bottom(); ++y) {
        for (int x = placed.seen.left(); x <= placed.seen.right(); ++x)
            light.push_back(0.05 + luminance(picture.pixel(x, y)));
    }
    std::ranges::sort(light);
    const double ground = light[light.size() / 2];
    const double contrast = std::max(light.back() / ground, ground / light.front());
    const QString name = nameOf(placed.widget);
    if (contrast >= leastContrast || std::ranges::any_of(givenColours, [&](const char *given) {
            return name.startsWith(given);
        }))
        return {};
    return QStringLiteral("text with a contrast of %1: %2 \"%3\"")
        .arg(contrast, 0, 'f', 1)
        .arg(name, textOf(placed));
}

// Rows and tabs, in the coordinates of the widget that has them.
QList<QRect> partsOf(const QWidget *widget)
{
    QList<QRect> parts;
    if (auto *view = qobject_cast<const QAbstractItemView *>(widget)) {
        const QAbstractItemModel *model = view->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            const QRect line = view->visualRect(model->index(row, 0)) |
                               view->visualRect(model->index(row, model->columnCount() - 1));
            parts.append(line.translated(view->viewport()->pos()));
        }
    } else if (auto *tabs = qobject_cast<const QTabBar *>(widget)) {
        for (int tab = 0; tab < tabs->count(); ++tab)
            parts.append(tab == tabs->currentIndex() ? QRect() : tabs->tabRect(tab));
    }
    return parts;
}
} // namespace

QList<Placed> touchPlaces(QWidget *window)
{
    QList<Placed> widgets;
    collect(window, widgets);
    QList<Placed> places;
    for (const Placed &placed : widgets) {
        if (reacts(placed.widget))
            places.append({placed.widget, placed.whole, placed.seen, nameOf(placed.widget)});
        const QList<QRect> parts = partsOf(placed.widget);
        for (qsizetype part = 0; part < parts.size(); ++part) {
            const QRect whole = parts[part].translated(placed.whole.topLeft());
            if (!parts[part].isEmpty() && whole.intersects(placed.seen))
                places.append({placed.widget, whole, whole & placed.seen,
                               QStringLiteral("%1 %2").arg(nameOf(placed.widget)).arg(part)});
        }
    }
    return places;
}

QStringList layoutFindings(QWidget *window)
{
    QList<Placed> widgets;
    collect(window, widgets);

    QStringList findings;
    const QImage picture = window->grab().toImage();
    for (const Placed &placed : widgets) {
        findings.append(cutText(placed));
        if (!textOf(placed).isEmpty())
            findings.append(faintText(placed, picture));
    }
    findings.removeAll(QString());
    const QList<Placed> touchable = touchPlaces(window);
    for (const Placed &placed : touchable) {
        if (std::min(placed.whole.width(), placed.whole.height()) < smallestTouch)
            findings.append(QStringLiteral("too small for a finger: %1, %2 x %3")
                                .arg(placed.name)
                                .arg(placed.whole.width())
                                .arg(placed.whole.height()));
    }
    for (qsizetype first = 0; first < touchable.size(); ++first) {
        for (qsizetype second = first + 1; second < touchable.size(); ++second) {
            const Placed &one = touchable[first];
            const Placed &other = touchable[second];
            const bool nested =
                one.widget->isAncestorOf(other.widget) || other.widget->isAncestorOf(one.widget);
            if (!nested && one.seen.intersects(other.seen))
                findings.append(QStringLiteral("overlap: %1 and %2").arg(one.name, other.name));
        }
    }
    return findings;
}
