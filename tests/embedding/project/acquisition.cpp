#include "acquisition/GetData.h"
#include "acquisition/PM25Uart.h"

void sensorLink()
{
    PM25Uart link(nullptr);
    QObject::connect(&link, &PM25Uart::signal_updatePMData, &link, [](int) {});
    QObject::connect(&link, &PM25Uart::signal_PMDataHandle, &link, [](int) {});
    const bool isOpen = link.openUart(QString("ttyUSB0"));
    link.power_on();
    link.DataHandle(isOpen);
    link.power_off();
    link.rxDataReady_slot();
    link.closeUart();
    QByteArray frame;
    const int value = PM2_5_dataHandle(&frame);
    link.DataHandle(value);
}

void scheduler()
{
    GetData scheduler(nullptr);
    QThread *base = &scheduler;
    QObject::connect(&scheduler, &GetData::signal_updatePMData, base, [](int) {});
    QObject::connect(&scheduler, &GetData::signal_updateTempData, base, [](int) {});
    QObject::connect(&scheduler, &GetData::signal_updateHumData, base, [](int) {});
    QObject::connect(&scheduler, &GetData::signal_insertDataBaseItem, base,
                     [](time_t, QString, int, int) {});
    scheduler.PM25DataHandle_slot(0);
    scheduler.start_PM25_samping();
    for (int *shared : {&GetData::iPmNum, &GetData::iTotalPmValue, &GetData::iLastPm,
                        &GetData::iLastTemperature, &GetData::iLastHumidity, &GetData::iTempHumNum,
                        &GetData::iTotalTempValue, &GetData::iTotalHumValue})
        *shared = 0;
    GetData::iLastUnixSec = 0;
}
