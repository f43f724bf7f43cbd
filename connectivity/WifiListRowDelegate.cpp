#include "connectivity/WifiListRowDelegate.h"

#include "connectivity/NetworkName.h"
#include "connectivity/WifiInfo.h"
#include "pages/Look.h"

#include <QDebug>
#include <QPainter>
#include <algorithm>

namespace {
constexpr int lockLeft = 257;
constexpr int lockToSignal = 20;
constexpr int signalToName = 10;
constexpr int nameBelowSignal = 5;
constexpr int progressFromRight = 80;
constexpr int hairlineFromRight = 71;
constexpr int textToProgress = 13;

QPixmap picture(const QString &name)
{
    return QPixmap(QStringLiteral(":/resource/images/optionPage/setWifi/%1.png").arg(name));
}

// Where @p pixmap lies in @p row with its left edge at @p left, centred vertically.
QRect centred(const QRect &row, int left, const QPixmap &pixmap)
{
    return {QPoint(left, row.top() + (row.height() - pixmap.height()) / 2), pixmap.size()};
}

int leftOf(const QRect &row, const QPixmap &pixmap)
{
    return row.right() - progressFromRight - pixmap.width() + 1;
}
} // namespace

WifiListRowDelegate::WifiListRowDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , normal(loadLook(Qt::white, QStringLiteral("lock"), QStringLiteral("wifiSignal%1")))
    , highlighted(loadLook(Look::accent, QStringLiteral("lockSelect"),
                           QStringLiteral("wifiSelectSignal%1")))
    , ground(picture(QStringLiteral("selectWifi")))
    , enter(picture(QStringLiteral("enter")))
    , loading(picture(QStringLiteral("Loading1")))
{
}

WifiListRowDelegate::RowLook WifiListRowDelegate::loadLook(const QColor &text, const QString &lock,
                                                           const QString &signal)
{
    RowLook look{text, picture(lock), {}};
    for (int level = 1; level <= int(look.signalLevels.size()); ++level)
        look.signalLevels[std::size_t(level - 1)] = picture(signal.arg(level));
    return look;
}

QSize WifiListRowDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {100, 80};
}

void WifiListRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index) const
{
    const QRect row = option.rect;
    const auto state = ConnectState(index.data(Qt::CheckStateRole).toInt());
    const bool connected = state == StateConnected || state == StateConnectedNoNetwork;
    const bool connecting = state == StateConnecting;
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const RowLook &look = selected || connected || connecting ? highlighted : normal;

    painter->save();
    if (connecting || (selected && !connected)) {
        qDebug() << "selected";
        painter->drawPixmap(row, ground);
    } else {
        const QRect hairline(row.left() + lockLeft, row.bottom(),
                             row.width() - lockLeft - hairlineFromRight, 1);
        painter->fillRect(hairline, QColor(255, 255, 255, 25));
    }

    const int bars = std::clamp(index.data(Qt::StatusTipRole).toInt(), 1, 4);
    const QPixmap &signal = look.signalLevels[std::size_t(bars - 1)];
    const QRect lockArea = centred(row, row.left() + lockLeft, look.lock);
    const QRect signalArea = centred(row, lockArea.right() + 1 + lockToSignal, signal);
    painter->drawPixmap(lockArea, look.lock);
    painter->drawPixmap(signalArea, signal);

    painter->setFont(option.font);
    painter->setPen(look.text);
    QRect line(signalArea.right() + 1 + signalToName, row.top(), row.width(),
               signalArea.bottom() + 1 + nameBelowSignal - row.top());
    const int nameEnd = paintProgress(painter, row, line, connected, connecting);
    painter->drawText(
        line, Qt::AlignLeft | Qt::AlignBottom | Qt::TextSingleLine,
        elidedName(index.data().toString(), option.fontMetrics, nameEnd - line.left()));
    painter->restore();
}

int WifiListRowDelegate::paintProgress(QPainter *painter, const QRect &row, const QRect &line,
                                       bool connected, bool connecting) const
{
    if (connecting) {
        const int left = leftOf(row, loading);
        painter->drawPixmap(centred(row, left, loading), loading);
        return left - textToProgress;
    }
    if (!connected)
        return row.right() - progressFromRight;

    const int left = leftOf(row, enter);
    painter->drawPixmap(centred(row, left, enter), enter);
    QRect area = line;
    area.setRight(left - textToProgress - 1);
    QRect written;
    painter->drawText(area, Qt::AlignRight | Qt::AlignBottom | Qt::TextSingleLine,
                      // Kept[connected-untranslated]: the same in every language.
                      QStringLiteral("已连接"), &written);
    return written.left() - textToProgress;
}
