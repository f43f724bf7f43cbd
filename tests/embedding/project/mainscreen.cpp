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
    using MainView::choose_page;
    using MainView::slide_left;
    using MainView::slide_right;
};

template <class Page>
class Reading : public Page
{
    using Page::update_currentData;
};

class PmReading : public PmPage
{
    using PmPage::ShowAnimation;
};

void mainView()
{
    MainView view(nullptr);
    QGraphicsView *base = &view;
    view.slide(-1);
    view.slide_show(MainView::SlideDirection(2));

    BaseScene overlay(nullptr);
    QObject::connect(&overlay, &BaseScene::signal_jumpToOption, base, &QWidget::close);
    QObject::connect(&overlay, &BaseScene::signal_jumpPage, base, [](int) {});
    overlay.change_currentPage(1);
}

void readingPages()
{
    PmPage page(nullptr);
    page.update_pmData(35);
    BaseValue *base = &page;
    QObject::connect(base, &BaseValue::signal_slideRight, base, &QWidget::close);
    QObject::connect(base, &BaseValue::signal_slideLeft, base, &QWidget::close);
    const Reading<PmPage> pm;
    const Reading<TemperaturePage> temperature;
    const Reading<HumidityPage> humidity;

    PmAnimation animation(&page);
    QObject::connect(&animation, &PmAnimation::Finish, static_cast<QFrame *>(&animation),
                     &QWidget::close);
    animation.init();
    animation.startAnimation();
    animation.stopAnimation();
}

void colours()
{
    GradualValueToColor scale;
    scale.setStartColor(0x64dd17);
    scale.setEndColor(0xba1650);
    scale.setColorAt(0.5F, 0xffeb3b);
    RGB rgb;
    scale.parseHexToRGB(0xffeb3b, rgb.r, rgb.g, rgb.b);
    const QString name = scale.colorAt(0.25F);
    const std::pair<float, float> range = findRangRgb(0.5F, QMap<float, RGB>{{0.0F, rgb}});
    PmColorGenerator generator;
    const GradualValueToColor *base = &generator;
    const QColor color = generator.colorOfPm(range.first);
    static_cast<void>(base && color.name() == name);
}
