#include "acquisition/GetData.h"

#include "acquisition/PM25Uart.h"
#include "device/DevicePath.h"
#include "store/ZellDatabase.h"

#include <QDebug>
#include <QRandomGenerator>
#include <QTimer>
#include <utility>

GetData *getData = nullptr;
// Kept[spare-timer]: nobody starts it or listens to it.
QTimer *randUARTSignal = nullptr;

namespace {
using namespace std::chrono_literals;

constexpr auto refreshInterval = 1s;
constexpr std::chrono::milliseconds samplingInterval{PM25_SAMPING_INTERVAL};
constexpr std::chrono::milliseconds samplingDuration{PM25_SAMPING_DURATION};
constexpr int pmReadingsPerRow = 10000;
constexpr int pmBenchRange = 500;

// Notes value as the last one of the class and of one scheduler. Whether that has not told its
// listeners yet; it asks its own memory, as any other scheduler may have met the change first.
bool isNews(int value, std::optional<int> &reported, int &last)
{
    last = value;
    return std::exchange(reported, value) != value;
}

time_t currentTime()
{
    return std::time(nullptr);
}
} // namespace

GetData::GetData(QObject *parent)
    : QThread(parent)
{
    all.append(this);
    // Before the link below is built: it connects to the program-wide scheduler.
    if (!getData)
        getData = this;
    Variable_Init();
    if (!zelldatabase)
        return;
    zelldatabase->openMeasurements();
    connect(this, &GetData::signal_insertDataBaseItem, zelldatabase,
            &ZellDatabase::InsertDataBaseItem);
}

GetData::~GetData()
{
    quit();
    wait();
    all.removeOne(this);
    if (getData == this)
        getData = nullptr;
}

void GetData::Variable_Init()
{
    uart = std::make_unique<PM25Uart>();
    refreshTimer = addTimer("refreshTimer", &GetData::refresh_allData);
    samplingTimer = addTimer("samplingTimer", &GetData::start_PM25_samping_slot);
    stopTimer = addTimer("stopTimer", &GetData::stop_PM25_samping_slot);
    // A coarse timer would end a window up to half a second early.
    stopTimer->setTimerType(Qt::PreciseTimer);
    refreshTimer->start(refreshInterval);
    samplingTimer->start(samplingInterval);
}

QTimer *GetData::addTimer(const char *name, void (GetData::*slot)())
{
    auto *timer = new QTimer(this);
    timer->setObjectName(QLatin1String(name));
    connect(timer, &QTimer::timeout, this, slot);
    return timer;
}

bool GetData::isNetworkAvailable() const
{
    return networkAvailable;
}

const QList<GetData *> &GetData::objects()
{
    return all;
}

// Kept[empty-thread]: each refresh and sampling slot starts a thread that ends at once.
void GetData::run() {}

// Kept[spare-slots]: like the slots for one field and for random values, it serves nobody.
void GetData::PM25DataHandle_slot(int /*iData*/) {}

void GetData::refresh_allData()
{
    refresh_tempHumData();
}

// A fault that lasts is written once, whichever scheduler meets it.
TempHumReading GetData::readTempHum()
{
    const QString path =
        devicePath(QStringLiteral("/sys/devices/platform/sun5i-i2c.2/i2c-2/2-0044/temp_humidity"));
    const TempHumReading reading = parseTempHum(sensor.read(path));
    const bool isFaulty =
        reading.temperature == invalidReading || reading.humidity == invalidReading;
    if (isFaulty && !isSensorFaultTold)
        qDebug() << "No valid temperature and humidity in" << path;
    isSensorFaultTold = isFaulty;
    return reading;
}

void GetData::refresh_tempHumData()
{
    quit();
    // Kept[shared-counters]: every scheduler counts, so that a row is due the sooner the more there
    // are.
    ++iTempHumNum;
    TempHumReading reading = readTempHum();
    reportChanges(reading);

    iTotalTempValue += reading.temperature;
    // Kept[humidity-no-sum]: the stored humidity follows from the last reading alone.
    iTotalHumValue = reading.humidity + reading.temperature;
    if (iTempHumNum == TEMPHUM_TIME_duration)
        reading = storeAverages();
    if (!networkAvailable) {
        emit signal_insertDataBaseItem(currentTime(), QStringLiteral("TempAndHum_NoWiFi"),
                                       reading.temperature, reading.humidity);
    }
    start(QThread::InheritPriority);
}

void GetData::reportChanges(const TempHumReading &reading)
{
    if (isNews(reading.temperature, reportedTemperature, iLastTemperature))
        emit signal_updateTempData(reading.temperature);
    if (isNews(reading.humidity, reportedHumidity, iLastHumidity))
        emit signal_updateHumData(reading.humidity);
}

// Asks for the row that is due and starts the next period. Returns the averages.
TempHumReading GetData::storeAverages()
{
    const TempHumReading average{validAverage(iTotalTempValue / TEMPHUM_TIME_duration),
                                 iTotalHumValue / TEMPHUM_TIME_duration};
    insertPruned(QStringLiteral("TempAndHum"), average.temperature, average.humidity);
    iTempHumNum = 0;
    iTotalTempValue = 0;
    iTotalHumValue = 0;
    return average;
}

void GetData::insertPruned(const QString &tableName, int value, int value2)
{
    const time_t now = currentTime();
    if (zelldatabase)
        zelldatabase->DeleteDataBaseTimeItem(tableName, now);
    emit signal_insertDataBaseItem(now, tableName, value, value2);
}

void GetData::refresh_temperatureData()
{
    quit();
    ++iTempHumNum;
    emit signal_updateTempData(readTempHum().temperature);
    start(QThread::InheritPriority);
}

void GetData::refresh_humidityData()
{
    quit();
    ++iTempHumNum;
    emit signal_updateHumData(readTempHum().humidity);
    start(QThread::InheritPriority);
}

int GetData::get_pmData()
{
    currentPm = validAverage(QRandomGenerator::global()->bounded(pmBenchRange));
    if (isNews(currentPm, reportedPm, iLastPm))
        emit signal_updatePMData(currentPm);

    iTotalPmValue += currentPm;
    ++iPmNum;
    if (iPmNum == pmReadingsPerRow) {
        insertPruned(QStringLiteral("PM2_5"), 0, validAverage(iTotalPmValue / pmReadingsPerRow));
        iPmNum = 0;
        iTotalPmValue = 0;
    }
    if (!networkAvailable) {
        emit signal_insertDataBaseItem(currentTime(), QStringLiteral("PM2_5_NoWiFi"), 0, currentPm);
    }
    return currentPm;
}

void GetData::start_PM25_samping_slot()
{
    quit();
    if (samplingState != PM25_NO_SAMPING) {
        qDebug() << "正在手动/app检测PM2.5, 不再次触发";
        return;
    }
    start_PM25_samping();
    start(QThread::InheritPriority);
}

void GetData::start_PM25_samping()
{
    qDebug() << "启动PM2.5检测";
    qDebug() << "绑定PM2.5刷新信号和槽";
    if (!uart->openUart(QStringLiteral("ttyUSB0"))) {
        qDebug() << "待添加错误处理逻辑";
        return;
    }
    stopTimer->start(samplingDuration);
    samplingState = PM25_SAMPING_WAIT;
}

void GetData::stop_PM25_samping_slot()
{
    quit();
    qDebug() << sender();
    uart->closeUart();
    stopTimer->stop();
    samplingState = PM25_NO_SAMPING;
    start(QThread::InheritPriority);
}
