#include "Names.h"
#include "history/Blackboard.h"
#include "history/HistoryPage.h"
#include "history/SlideLabel.h"

static_assert(has<Blackboard>(&Blackboard::signalTouch, &Blackboard::signalMouseRelease,
                              &Blackboard::setValueMap, &Blackboard::timeXToScreenX,
                              &Blackboard::valueYToScreenY, &Blackboard::screenYToValueY,
                              &Blackboard::searchNearestTime, &Blackboard::searchNearestScreenX,
                              &Blackboard::isCurrentDay, &Blackboard::is0oclock,
                              &Blackboard::touchEvent, &Blackboard::timeLineFrameChanged,
                              &Blackboard::reanimate1));
using Range = decltype(std::declval<Blackboard>().getDayTimeRange(CurrentDay(0)));
static_assert(std::is_same_v<Range, std::pair<int, int>>);

static_assert(has<HistoryPage>(&HistoryPage::signal_backDefaultPage, &HistoryPage::showing,
                               &HistoryPage::hiding, &HistoryPage::loadData));
static_assert(has<SlideLabel>(&SlideLabel::updateValue));
