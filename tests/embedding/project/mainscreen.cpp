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

void mainView()
{
    MainView view(nullptr);
    QGraphicsView &base = view;
    base.show();
    view.slide(-1);
    view.slide_show(MainView::SlideDirection(2));

    BaseScene overlay(nullptr);
    listen(&overlay, &BaseScene::signal_jumpToOption);
    QObject::connect(&overlay, &BaseScene::signal_jumpPage, [](int) {});
    overlay.change_currentPage(1);
}

void readingPages()
{
    PmPage page(nullptr);
    page.update_pmData(35);
    for (BaseValue *base :
         {static_cast<BaseValue *>(&page), static_cast<BaseValue *>(new TemperaturePage(nullptr)),
          static_cast<BaseValue *>(new HumidityPage(nullptr))})
        listen(base, &BaseValue::signal_slideRight, &BaseValue::signal_slideLeft);

    PmAnimation animation(&page);
    QFrame &base = animation;
    base.show();
    listen(&animation, &PmAnimation::Finish);
    call(animation, &PmAnimation::init, &PmAnimation::startAnimation, &PmAnimation::stopAnimation);
}

void colours()
{
    PmColorGenerator generator;
    GradualValueToColor &scale = generator;
    scale.setStartColor(0x64dd17);
    scale.setEndColor(0xba1650);
    scale.setColorAt(0.5F, 0xffeb3b);
    RGB rgb;
    scale.parseHexToRGB(0xffeb3b, rgb.r, rgb.g, rgb.b);
    const std::pair<float, float> range = findRangRgb(0.5F, QMap<float, RGB>{{0.0F, rgb}});
    const QColor color = generator.colorOfPm(range.first);
    const QString name = scale.colorAt(range.second) + color.name();
}
