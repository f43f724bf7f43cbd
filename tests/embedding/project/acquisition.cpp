#include "Names.h"
#include "acquisition/GetData.h"
#include "acquisition/PM25Uart.h"

void sensorLink()
{
    PM25Uart link(nullptr);
    QObject::connect(&link, &PM25Uart::signal_updatePMData, [](int) {});
    QObject::connect(&link, &PM25Uart::signal_PMDataHandle, [](int) {});
    const bool isOpen = link.openUart(QString("ttyUSB0"));
    QByteArray frame;
    const int value = PM2_5_dataHandle(&frame);
    link.DataHandle(isOpen + value);
    call(link, &PM25Uart::rxDataReady_slot, &PM25Uart::closeUart, &PM25Uart::power_on,
         &PM25Uart::power_off);
}

void scheduler()
{
    GetData scheduler(nullptr);
    QThread *base = &scheduler;
    base->wait();
    for (const auto &reading : {&GetData::signal_updatePMData, &GetData::signal_updateTempData,
                                &GetData::signal_updateHumData})
        QObject::connect(&scheduler, reading, [](int) {});
    QObject::connect(&scheduler, &GetData::signal_insertDataBaseItem,
                     [](time_t, QString, int, int) {});
    scheduler.PM25DataHandle_slot(0);
    scheduler.start_PM25_samping();
    for (int *shared : {&GetData::iPmNum, &GetData::iTotalPmValue, &GetData::iLastPm,
                        &GetData::iLastTemperature, &GetData::iLastHumidity, &GetData::iTempHumNum,
                        &GetData::iTotalTempValue, &GetData::iTotalHumValue})
        *shared = int(GetData::iLastUnixSec);
}
