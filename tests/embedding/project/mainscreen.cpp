#include "Names.h"
#include "mainscreen/BaseScene.h"
#include "mainscreen/HumidityPage.h"
#include "mainscreen/MainView.h"
#include "mainscreen/PmAnimation.h"
#include "mainscreen/PmColorGenerator.h"
#include "mainscreen/PmPage.h"
#include "mainscreen/TemperaturePage.h"

// Protected slots are there for classes that derive.
class View : public MainView
{
    using MainView::choose_page, MainView::slide_left, MainView::slide_right;
};

class PmReading : public PmPage
{
    using PmPage::ShowAnimation, PmPage::update_currentData;
};

class TemperatureReading : public TemperaturePage
{
    using TemperaturePage::update_currentData;
};

class HumidityReading : public HumidityPage
{
    using HumidityPage::update_currentData;
};

static_assert(has<MainView, QGraphicsView>(&MainView::slide, &MainView::slide_show,
                                           MainView::SlideDirection(2)));
static_assert(has<BaseScene>(&BaseScene::signal_jumpToOption, &BaseScene::signal_jumpPage,
                             &BaseScene::change_currentPage));
static_assert(has<BaseValue>(&BaseValue::signal_slideRight, &BaseValue::signal_slideLeft));
static_assert(has<PmPage, BaseValue>(&PmPage::update_pmData));
static_assert(has<TemperaturePage, BaseValue>());
static_assert(has<HumidityPage, BaseValue>());
static_assert(has<PmAnimation, QFrame>(&PmAnimation::Finish, &PmAnimation::init,
                                       &PmAnimation::startAnimation, &PmAnimation::stopAnimation));

using Scale = GradualValueToColor;
static_assert(exist(&Scale::setStartColor, &Scale::setEndColor, &Scale::setColorAt,
                    &Scale::parseHexToRGB, &Scale::colorAt, &PmColorGenerator::colorOfPm,
                    &findRangRgb, &RGB::r, &RGB::g, &RGB::b));
static_assert(std::is_base_of_v<Scale, PmColorGenerator>);
static_assert(std::is_default_constructible_v<PmColorGenerator>);
