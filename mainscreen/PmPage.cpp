#include "mainscreen/PmPage.h"

#include "acquisition/GetData.h"
#include "mainscreen/PmAnimation.h"
#include "settings/OptionFrame.h"
#include "shell/Global_cfg.h"
#include "ui_BaseValue.h"

#include <QDebug>

namespace {
// Kept[pm-at-start]: shown until a measurement arrives.
constexpr int valueAtStart = 567;
constexpr QPoint animationPosition{110, 174};
} // namespace

PmPage::PmPage(QWidget *parent)
    : BaseValue(parent)
    , animation(new PmAnimation(this))
    , scanSurface(new OptionFrame(this))
    , ownScheduler(std::make_unique<GetData>())
{
    setObjectName(QStringLiteral("PmPage"));
    ui->label_symbol->hide();
    ui->label_units->setAlignment(Qt::AlignRight);
    update_currentData(valueAtStart);

    animation->move(animationPosition);
    animation->init();
    animation->hide();
    scanSurface->setObjectName(QStringLiteral("frame_scan"));
    scanSurface->setGeometry(animation->geometry());
    scanSurface->hide();

    connect(ownScheduler.get(), &GetData::signal_updatePMData, this, &PmPage::update_pmData);
    connect(ui->frame_value, &OptionFrame::clicked, this, &PmPage::ShowAnimation);
    connect(scanSurface, &OptionFrame::clicked, this, &PmPage::ShowAnimation);
}

PmPage::~PmPage() = default;

void PmPage::follow(const GetData *scheduler)
{
    connect(scheduler, &GetData::signal_updatePMData, this, &PmPage::update_currentData);
}

void PmPage::setInSight(bool inSight)
{
    animation->setInSight(inSight);
}

void PmPage::update_pmData(int iValue)
{
    qDebug() << "update_pmData" << iValue;
    setScanning(false);
    update_currentData(iValue);
}

void PmPage::update_currentData(int iValue)
{
    if (iValue == invalidReading)
        qDebug("Error PM2.5 number:9999");
    const std::optional<DigitRow> row = pmRow(iValue);
    if (!row) {
        qDebug() << "不可置信" << iValue;
        return;
    }
    showRow(*row);
}

void PmPage::ShowAnimation()
{
    if (!busy)
        setScanning(true);
    // Kept[tap-while-scanning]: also while the last one is still awaited.
    ownScheduler->start_PM25_samping();
}

void PmPage::setScanning(bool scanning)
{
    busy = scanning;
    ui->frame_center->setVisible(!scanning);
    scanSurface->setVisible(scanning);
    if (scanning) {
        animation->show();
        animation->startAnimation();
    } else {
        animation->stopAnimation();
    }
}
