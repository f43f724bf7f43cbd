#pragma once

#include "acquisition/SensorText.h"
#include "device/SensorReader.h"
#include "shell/Global_cfg.h"

#include <QList>
#include <QString>
#include <QThread>
#include <ctime>
#include <memory>
#include <optional>

class PM25Uart;
class QTimer;

/// The sampling scheduler: temperature and humidity every second, a row of averages into the
/// database every 300 readings, and every 15 minutes a PM2.5 sampling of ten seconds.
///
/// GUI thread, and only once there is an application object: a timer started before never ticks.
/// Its thread is empty; the slots start it and nothing waits for it but the destructor. A sensor
/// file that cannot be read gives invalidReading (9999) and one debug line as long as it lasts.
///
/// Every scheduler reports to its own listeners its first reading and every change. The counters
/// are shared by all of them: with three schedulers a row is due every 100 seconds.
class GetData : public QThread
{
    Q_OBJECT

public:
    /// Opens the database and makes its tables, where there is a `zelldatabase`. The first
    /// scheduler of the program becomes `getData`.
    explicit GetData(QObject *parent = nullptr);
    ~GetData() override;

    /// Opens the sensor link for ten seconds, whether it is open already or not.
    void start_PM25_samping();

    /// Tells whether the device has a network; while it has, the tables for rows without stay
    /// empty.
    bool isNetworkAvailable() const;

    /// Lists every scheduler there is, the oldest first.
    static const QList<GetData *> &objects();

    // What all schedulers share. Sums and counts since the last row, the values read last by any
    // of them, and the time of the row stored last (Unix seconds, kept by the database).
    inline static int iPmNum = 0;
    inline static int iTotalPmValue = 0;
    inline static int iLastPm = 0;
    inline static int iLastTemperature = 0;
    inline static int iLastHumidity = 0;
    inline static int iTempHumNum = 0;
    inline static int iTotalTempValue = 0;
    inline static int iTotalHumValue = 0;
    inline static time_t iLastUnixSec = 0;

signals:
    void signal_updatePMData(int iPm);
    void signal_updateTempData(int iTemp);
    void signal_updateHumData(int iHum);
    void signal_insertDataBaseItem(time_t iTimeSec, const QString &tableName, int value,
                                   int value2);

public slots:
    /// Takes what a sensor link hands over; nothing is done with it.
    void PM25DataHandle_slot(int iData);

protected:
    void run() override;

private slots:
    void refresh_allData();
    int get_pmData();
    void refresh_temperatureData();
    void refresh_humidityData();
    void start_PM25_samping_slot();
    void stop_PM25_samping_slot();

private:
    static TempHumReading readTempHum();
    void Variable_Init();
    void refresh_tempHumData();
    void reportChanges(const TempHumReading &reading);
    TempHumReading storeAverages();
    void insertPruned(const QString &tableName, int value, int value2);
    QTimer *addTimer(const char *name, void (GetData::*slot)());

    inline static QList<GetData *> all;
    inline static SensorReader sensor;
    inline static bool isSensorFaultTold = false;

    bool networkAvailable = true;
    QTimer *refreshTimer = nullptr;
    QTimer *samplingTimer = nullptr;
    QTimer *stopTimer = nullptr;
    int currentPm = 0;
    int samplingState = PM25_NO_SAMPING;
    std::unique_ptr<PM25Uart> uart;
    std::optional<int> reportedPm;
    std::optional<int> reportedTemperature;
    std::optional<int> reportedHumidity;
};

/// The program-wide scheduler: the first one built, null before and after its life.
extern GetData *getData;

/// Its spare timer, never started. Made by main and owned by the scheduler; null before.
extern QTimer *randUARTSignal;
