#include "history/Blackboard.h"
#include "history/HistoryPage.h"
#include "history/SlideLabel.h"

#include <QMouseEvent>
#include <type_traits>

void chart(QMouseEvent *event)
{
    Blackboard chart(nullptr);
    QObject::connect(&chart, &Blackboard::signalTouch, &chart,
                     [](float, int, float, QColor, QString) {});
    QObject::connect(&chart, &Blackboard::signalMouseRelease, &chart, &QWidget::hide);
    chart.setValueMap(QMap<int, float>{{0, 1.0F}}, 2);
    static_assert(std::is_same_v<decltype(chart.is0oclock(0)), bool>);
    chart.isCurrentDay(0);
    const float x = chart.timeXToScreenX(0.0F, true);
    const float y = chart.valueYToScreenY(chart.screenYToValueY(0.0F));
    const int time = chart.searchNearestTime(y);
    chart.isCurrentDay(time + chart.searchNearestScreenX(x, true));
    chart.touchEvent(event);
    chart.timeLineFrameChanged(0);
    chart.reanimate1();
    chart.update();
}

void historyPage()
{
    HistoryPage page(nullptr);
    QObject::connect(&page, &HistoryPage::signal_backDefaultPage, &page, &QWidget::close);
    page.showing(1);
    page.hiding();
    page.loadData();
    SlideLabel label(&page);
    label.updateValue(1.0F, QString("%"), QString("2016-07-11"), QColor());
}
