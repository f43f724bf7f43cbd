#include "Names.h"
#include "history/Blackboard.h"
#include "history/HistoryPage.h"
#include "history/SlideLabel.h"

// What the tests of the room call is not named a second time.
static_assert(has<Blackboard>(&Blackboard::isCurrentDay, &Blackboard::touchEvent,
                              &Blackboard::timeLineFrameChanged, &Blackboard::reanimate1));
static_assert(has<HistoryPage>(&HistoryPage::hiding));
static_assert(has<SlideLabel>(&SlideLabel::updateValue));
