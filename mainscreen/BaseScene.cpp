#include "mainscreen/BaseScene.h"

#include "acquisition/GetData.h"
#include "history/HistoryPage.h"
#include "mainscreen/Transparent.h"
#include "pages/Ground.h"
#include "pages/SlideIn.h"
#include "shell/Global_cfg.h"
#include "ui_BaseScene.h"

#include <QDebug>
#include <QMouseEvent>
#include <QParallelAnimationGroup>
#include <QPropertyAnimation>
#include <algorithm>

namespace {
// Four places fit into the tile in it.
const QString smallReading = QStringLiteral("font-size: 48px;");
constexpr int placesOfATile = 3;

// Kept[fixed-levels]: no reading changes the text of a level.
void showReading(QLabel *label, int reading, std::initializer_list<QLabel *> companions)
{
    if (reading != invalidReading) {
        label->setText(QStringLiteral("%1").arg(reading));
        const bool isLong = label->text().size() > placesOfATile;
        // Either way on the line of the other tile's.
        label->setAlignment(Qt::AlignHCenter | (isLong ? Qt::AlignBottom : Qt::AlignTop));
        const QString style = isLong ? smallReading : QString();
        if (label->styleSheet() != style)
            label->setStyleSheet(style);
        return;
    }
    // The picture of the dashes stands lower than a line of text would.
    label->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    label->setPixmap(QPixmap(QStringLiteral(":/resource/images/mainPage/num/--.png")));
    // Kept[unit-stays-hidden]: also when a valid reading follows.
    for (QLabel *companion : companions)
        companion->hide();
}
} // namespace

BaseScene::BaseScene(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::BaseScene>())
{
    ui->setupUi(this);
    makeTransparent(this);
    fillGround(ui->page_history);
    ownGround = {ui->frame_side,     ui->frame_pm,      ui->frame_temperature,
                 ui->frame_humidity, ui->frame_history, ui->page_history};
    historyPage = new HistoryPage(ui->page_history);
    animation_init();
    connect_init();
}

BaseScene::~BaseScene() = default;

void BaseScene::follow(const GetData *scheduler)
{
    connect(scheduler, &GetData::signal_updatePMData, this, &BaseScene::update_pmData);
    connect(scheduler, &GetData::signal_updateTempData, this, &BaseScene::update_tempData);
    connect(scheduler, &GetData::signal_updateHumData, this, &BaseScene::update_humData);
}

bool BaseScene::showsHistory() const
{
    return ui->stackedWidget->currentWidget() == ui->page_history;
}

void BaseScene::connect_init()
{
    connect(ui->stackedWidget, &QStackedWidget::currentChanged, this, &BaseScene::shownPageChanged,
            Qt::UniqueConnection);
    connect(historyPage, &HistoryPage::signal_backDefaultPage, this, &BaseScene::jump_scenePage,
            Qt::UniqueConnection);
}

// Kept[idle-motions]: made at start-up; no motion of the overlay uses them yet.
void BaseScene::animation_init()
{
    auto *together = new QParallelAnimationGroup(this);
    for (QWidget *frame :
         std::initializer_list<QWidget *>{ui->frame_side, ui->frame_other, ui->frame_bottom})
        together->addAnimation(new QPropertyAnimation(frame, "pos"));
}

void BaseScene::change_currentPage(int page)
{
    if (const QuantityLook *look = lookOf(page)) {
        // Before the other one comes: the layout would make room for three.
        tileOf(look->quantity)->hide();
        for (const QuantityLook &each : quantities)
            tileOf(each.quantity)->setVisible(each.quantity != look->quantity);
        // The unit of the caption, not of a tile.
        ui->label_unit->setVisible(look->unitPicture.isEmpty());
        if (look->logo.isEmpty())
            ui->label_logo->setText(titleOf(*look));
        else
            ui->label_logo->setPixmap(QPixmap(look->logo.toString()));
    }
    historyPage->showing(page);
}

void BaseScene::setLeading(Quantity quantity, bool leads)
{
    tileOf(quantity)->setStill(!leads);
}

OptionFrame *BaseScene::tileOf(Quantity quantity) const
{
    switch (quantity) {
    case Quantity::Pm:
        return ui->frame_pm;
    case Quantity::Temperature:
        return ui->frame_temperature;
    case Quantity::Humidity:
        break;
    }
    return ui->frame_humidity;
}

void BaseScene::update_pmData(int value)
{
    showReading(ui->label_pValue, value, {ui->label_pTips});
    qDebug("BaseScene update_pmData");
}

void BaseScene::update_tempData(int value)
{
    // label_3 is the tile's unit.
    showReading(ui->label_tValue, value, {ui->label_3, ui->label_tTips});
}

void BaseScene::update_humData(int value)
{
    showReading(ui->label_hValue, value, {ui->label_hUnit, ui->label_hTips});
}

void BaseScene::mousePressEvent(QMouseEvent *event)
{
    // Tiles and buttons hand on what they do not use, so every press that matters arrives here. One
    // that is not accepted goes to the reading page below.
    QWidget *touched = childAt(event->position().toPoint());
    while (touched && std::ranges::find(ownGround, touched) == ownGround.end())
        touched = touched->parentWidget();
    event->setAccepted(touched);
}

void BaseScene::on_button_history_clicked()
{
    historyPage->loadData();
    connect(slideIn(ui->page_history), &QPropertyAnimation::finished, this,
            &BaseScene::anHistory_finished);
}

void BaseScene::jump_scenePage()
{
    ui->stackedWidget->setCurrentWidget(ui->page_scene);
}

void BaseScene::anHistory_finished()
{
    ui->stackedWidget->setCurrentWidget(ui->page_history);
}
