#include "mainscreen/TemperaturePage.h"

#include "acquisition/GetData.h"
#include "shell/Global_cfg.h"

#include <QDebug>

TemperaturePage::TemperaturePage(QWidget *parent)
    : BaseValue(parent)
{
    setObjectName(QStringLiteral("TemperaturePage"));
    setUnitPicture(Quantity::Temperature);
    DigitRow noReadingYet = temperatureRow(invalidReading);
    noReadingYet.hidesUnit = false;
    showRow(noReadingYet);
}

void TemperaturePage::follow(const GetData *scheduler)
{
    connect(scheduler, &GetData::signal_updateTempData, this, &TemperaturePage::update_currentData);
}

void TemperaturePage::update_currentData(int iValue)
{
    if (iValue == invalidReading)
        qDebug("Error Temp number:9999");
    showRow(temperatureRow(iValue));
}
