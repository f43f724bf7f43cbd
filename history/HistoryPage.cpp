#include "history/HistoryPage.h"

#include "history/Blackboard.h"
#include "history/DemonstrationSeries.h"
#include "history/SlideLabel.h"
#include "ui_HistoryPage.h"

#include <QDateTime>
#include <QDebug>
#include <QMouseEvent>
#include <QProxyStyle>
#include <QTabBar>
#include <chrono>
#include <cstdlib>

namespace {
using namespace std::chrono_literals;

// Asked for instead of waiting for midnight: a clock that is set moves the days at any time.
constexpr auto clockWatchPeriod = 1s;
constexpr int indexOf7Days = 0;
constexpr float marginOf24Hours = 35;
// Room for the day buttons.
constexpr float marginOf7Days = 80;
// The read-out begins left of the dot it stands for.
constexpr float readOutLead = 35;
constexpr QSize readOutSize(200, 76);

const QString tabStyle = QStringLiteral(
    "QTabBar::tab:selected {color: #212121; border: 0px solid; border-radius: 5px;  "
    "background-color: #00e5ff}QTabBar {background-color: #000000}QTabBar::tab {width: 100px; "
    "height: 50px;font: 24px;}QTabBar::tab:!selected {color: #ffffff;background-color: "
    "#000000;}QTabWidget::pane { /* The tab widget frame */ width: 0px; height: 0px;}");
const QString dayStyle = QStringLiteral(
    "QRadioButton {font:bold 24px;}QRadioButton::checked {color:#ffffff}QRadioButton::unchecked "
    "{color:#4E4E4E}QRadioButton::indicator {width: 0px; height: 0px;}");
// Under the finger.
const QString pressedTabStyle = QStringLiteral("QTabBar::tab:!selected:pressed {background-color: "
                                               "rgba(0, 229, 255, 33); border-radius: 5px;}");
const QString pressedDayStyle = QStringLiteral("QRadioButton:pressed {color: #ffffff}");

// Tabs are chosen on release like all else: the panel may cancel a touch.
class TabStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *answer) const override
    {
        return hint == SH_TabBar_SelectMouseType
                   ? int(QEvent::MouseButtonRelease)
                   : QProxyStyle::styleHint(hint, option, widget, answer);
    }
};
} // namespace

HistoryPage::HistoryPage(QWidget *parent, LocalTime::Clock currentTime)
    : QWidget(parent)
    , clock(std::move(currentTime))
    , ui(std::make_unique<Ui::HistoryPage>())
    , slideLabel(new SlideLabel(this))
{
    ui->setupUi(this);
    ui->tabWidget->setStyleSheet(tabStyle);
    QTabBar *tabs = ui->tabWidget->tabBar();
    auto *style = new TabStyle;
    style->setParent(tabs);
    tabs->setStyle(style);
    tabs->setStyleSheet(pressedTabStyle);
    tabs->installEventFilter(this);
    for (auto *button : ui->day_group->findChildren<QRadioButton *>())
        button->setStyleSheet(dayStyle + pressedDayStyle);
    ui->day_group->hide();
    slideLabel->setGeometry(0, 0, 200, 100);
    slideLabel->raise();
    slideLabel->hide();

    blackboard = new Blackboard(ui->blackboard_content, clock);
    // The one that its holder has by style sheet, which in Qt's eyes is not opaque.
    blackboard->setGround(Qt::black);
    connect(blackboard, &Blackboard::readingReached, this, &HistoryPage::moveReadOut);
    connect(blackboard, &Blackboard::signalTouch, this, &HistoryPage::onBlackboradTouch);
    connect(blackboard, &Blackboard::signalMouseRelease, this, &HistoryPage::onBlackboradRelease);
    // Queued: names must not change while the chart is painted.
    connect(blackboard, &Blackboard::daysMoved, this, &HistoryPage::labelDays,
            Qt::QueuedConnection);
    connect(&clockWatch, &QTimer::timeout, blackboard, &Blackboard::followClock);
    loadData();
    ui->blackboard_content->layout()->addWidget(blackboard);
    labelDays();
}

HistoryPage::~HistoryPage() = default;

bool HistoryPage::eventFilter(QObject *watched, QEvent *event)
{
    auto *tabs = qobject_cast<QTabBar *>(watched);
    const bool isMove = tabs && event->type() == QEvent::MouseMove;
    const auto *move = isMove ? static_cast<QMouseEvent *>(event) : nullptr;
    // Released here it would choose nothing, but it would keep its light.
    if (move && !tabs->rect().contains(move->position().toPoint())) {
        QMouseEvent away(QEvent::MouseButtonRelease, move->position(), move->globalPosition(),
                         Qt::LeftButton, Qt::NoButton, move->modifiers());
        QCoreApplication::sendEvent(tabs, &away);
    }
    return QWidget::eventFilter(watched, event);
}

void HistoryPage::showing(int newQuantity)
{
    // Kept[quantity-alone]: the chart goes on showing the one before.
    quantity = newQuantity;
}

// Kept[hiding-hook]: the counterpart of showing() has nothing to do.
void HistoryPage::hiding() {}

void HistoryPage::loadData()
{
    const qint64 now = clock();
    // Kept[demonstration-series]: not what the device has measured.
    std::srand(unsigned(now));
    blackboard->setValueMap(demonstrationSeries(now, quantity, std::rand), quantity);
    const QuantityLook &look = blackboard->look();
    ui->label_sign->setPixmap(QPixmap(look.sign.toString()));
    ui->label_title->setText(QStringLiteral("%1  %2").arg(titleOf(look), look.unit));
}

void HistoryPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // Bar and chart cover it. Not earlier, as the style sheet would take it away.
    setAttribute(Qt::WA_OpaquePaintEvent);
    labelDays();
    blackboard->followClock();
    clockWatch.start(clockWatchPeriod);
}

void HistoryPage::hideEvent(QHideEvent *event)
{
    clockWatch.stop();
    QWidget::hideEvent(event);
}

void HistoryPage::labelDays()
{
    const QDateTime now = QDateTime::fromSecsSinceEpoch(clock(), Qt::OffsetFromUTC,
                                                        int(LocalTime::secondsAheadOfUtc));
    int daysAgo = 0;
    for (auto *button : ui->day_group->findChildren<QRadioButton *>())
        button->setText(now.addDays(-daysAgo++).toString(QStringLiteral("dd 日")));
}

void HistoryPage::present(int mode)
{
    blackboard->mode = mode;
    blackboard->timeScale = {.left =
                                 mode == Blackboard::sevenDays ? marginOf7Days : marginOf24Hours};
    blackboard->valueScale = {};
    blackboard->update();
}

void HistoryPage::selectDay(int day)
{
    // Kept[day-of-unchecked]: the button that lost its mark calls first, the new one last.
    blackboard->day = day;
    present(Blackboard::sevenDays);
}

void HistoryPage::on_tabWidget_currentChanged(int index)
{
    const bool shows7Days = index == indexOf7Days;
    qDebug() << (shows7Days ? "show 7 days data" : "show 24 hours data");
    ui->day_group->setVisible(shows7Days);
    present(shows7Days ? Blackboard::sevenDays : Blackboard::twentyFourHours);
}

void HistoryPage::onBlackboradTouch(float x, int time, float value, const QColor &valueColor,
                                    const QString &unit)
{
    qDebug() << "x:" << x << " time:" << time << " value:" << value;
    moveReadOut(x, value, valueColor, unit);
}

void HistoryPage::moveReadOut(float x, float value, const QColor &valueColor, const QString &unit)
{
    slideLabel->updateValue(value, unit, QStringLiteral("2016-07-11"), valueColor);
    // Kept[read-out-unheld]: at the first dots it begins left of the screen.
    slideLabel->setGeometry(QRect(QPoint(int(x - readOutLead), 0), readOutSize));
    slideLabel->show();
    ui->frame_top->hide();
}

void HistoryPage::onBlackboradRelease()
{
    slideLabel->hide();
    ui->frame_top->show();
    qDebug() << "Release";
}
