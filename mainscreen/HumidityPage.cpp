#include "mainscreen/HumidityPage.h"

#include "acquisition/GetData.h"
#include "shell/Global_cfg.h"

#include <QDebug>

namespace {
// Kept[humidity-at-start]: shown until a reading arrives.
constexpr int valueAtStart = 40;
} // namespace

HumidityPage::HumidityPage(QWidget *parent)
    : BaseValue(parent)
{
    setObjectName(QStringLiteral("HumidityPage"));
    setUnitPicture(Quantity::Humidity);
    showRow(humidityRow(valueAtStart));
}

void HumidityPage::follow(const GetData *scheduler)
{
    connect(scheduler, &GetData::signal_updateHumData, this, &HumidityPage::update_currentData);
}

void HumidityPage::update_currentData(int iValue)
{
    if (iValue == invalidReading)
        qDebug("Error Hum number:9999");
    showRow(humidityRow(iValue));
}
