#include "Names.h"
#include "acquisition/GetData.h"
#include "acquisition/PM25Uart.h"

static_assert(has<PM25Uart, QObject>(&PM25Uart::signal_updatePMData, &PM25Uart::signal_PMDataHandle,
                                     &PM25Uart::openUart, &PM25Uart::closeUart,
                                     &PM25Uart::DataHandle, &PM25Uart::rxDataReady_slot,
                                     &PM25Uart::power_on, &PM25Uart::power_off, &PM2_5_dataHandle));
static_assert(has<GetData, QThread>(
    &GetData::signal_updatePMData, &GetData::signal_updateTempData, &GetData::signal_updateHumData,
    &GetData::signal_insertDataBaseItem, &GetData::PM25DataHandle_slot,
    &GetData::start_PM25_samping, &GetData::iPmNum, &GetData::iTotalPmValue, &GetData::iLastPm,
    &GetData::iLastTemperature, &GetData::iLastHumidity, &GetData::iTempHumNum,
    &GetData::iTotalTempValue, &GetData::iTotalHumValue, &GetData::iLastUnixSec, &getData,
    &randUARTSignal));
