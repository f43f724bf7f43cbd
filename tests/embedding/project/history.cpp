#include "Names.h"
#include "history/Blackboard.h"
#include "history/HistoryPage.h"
#include "history/SlideLabel.h"

#include <QMouseEvent>
#include <type_traits>

void chart(QMouseEvent *event)
{
    Blackboard chart(nullptr);
    QObject::connect(&chart, &Blackboard::signalTouch, [](float, int, float, QColor, QString) {});
    listen(&chart, &Blackboard::signalMouseRelease);
    chart.setValueMap(QMap<int, float>{{0, 1.0F}}, 2);
    using Range = decltype(chart.getDayTimeRange(CurrentDay(0)));
    static_assert(std::is_same_v<Range, std::pair<int, int>>);
    const float x = chart.timeXToScreenX(0.0F, true);
    const float y = chart.valueYToScreenY(chart.screenYToValueY(0.0F));
    const int time = chart.searchNearestTime(y) + chart.searchNearestScreenX(x, true);
    chart.isCurrentDay(int(chart.is0oclock(time)));
    chart.touchEvent(event);
    chart.timeLineFrameChanged(0);
    chart.reanimate1();
    chart.update();
}

void historyPage()
{
    HistoryPage page(nullptr);
    listen(&page, &HistoryPage::signal_backDefaultPage);
    page.showing(1);
    call(page, &HistoryPage::hiding, &HistoryPage::loadData);
    SlideLabel(&page).updateValue(1.0F, QString("%"), QString("2016-07-11"), QColor());
}
