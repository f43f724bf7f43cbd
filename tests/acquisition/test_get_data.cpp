#include "acquisition/GetData.h"
#include "store/ZellDatabase.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/PseudoTerminal.h"

#include <QDir>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QTimer>
#include <sys/stat.h>

class TestGetData : public QObject
{
    Q_OBJECT

    const QString sensor = "/sys/devices/platform/sun5i-i2c.2/i2c-2/2-0044/temp_humidity";
    std::unique_ptr<ZellDatabase> database;

    static void tick(GetData &scheduler, const char *slot = "refresh_allData")
    {
        QMetaObject::invokeMethod(&scheduler, slot);
    }

    static QList<int> told(const QSignalSpy &spy)
    {
        QList<int> values;
        for (const QVariantList &arguments : spy)
            values << arguments[0].toInt();
        return values;
    }

private slots:
    void init()
    {
        database = std::make_unique<ZellDatabase>();
        zelldatabase = database.get();
        GetData::iTempHumNum = GetData::iTotalTempValue = 0;
        Environment::writeDeviceFile(sensor, "temp = 23456, humidity = 45678\n");
    }

    void fields()
    {
        const std::tuple<const char *, int, int> rows[] = {
            {"temp = 25499, humidity = 25500\n", 25, 26},
            {"temp = -5600, humidity = -1500", -5, -1},
            {"temp = 99999, humidity =  5499", 100, 5},
            {"°C   = 21000, Feuchte% = 40000", 21, 40},
            {"temp = 2x456, humidity = 45678", 9999, 46},
            {"temp = 23456, humi", 23, 9999},
            {"temp = 23456, humidity = 9876", 23, 10},
            {"temp = 2345", 9999, 9999}};
        for (const auto &[text, temperature, humidity] : rows) {
            const TempHumReading reading = parseTempHum(text);
            QVERIFY2(reading.temperature == temperature && reading.humidity == humidity, text);
        }
        for (const int value : {-41, -40, 100, 101}) {
            QCOMPARE(validTemperature(value), value == -40 || value == 100 ? value : 9999);
            QCOMPARE(validHumidity(value), value == 101 ? 9999 : value);
        }
        QVERIFY(validAverage(2000) == 2000 && validAverage(2001) == 9999);
    }

    void faultySensor()
    {
        const QString path = Environment::deviceRoot() + sensor;
        for (const QByteArray &content :
             {QByteArray(), QByteArray(64 << 20, '\0'), QByteArray("none"), QByteArray("pipe")}) {
            init();
            GetData one;
            GetData other;
            tick(other); // a fault is told afresh after a good reading
            Environment::writeDeviceFile(sensor, content);
            QVERIFY(content.size() != 4 || QFile::remove(path));
            QVERIFY(content != "pipe" || mkfifo(qPrintable(path), 0600) == 0);
            const QSignalSpy temperature(&one, &GetData::signal_updateTempData);
            const MessageLog log;
            for (GetData *scheduler : {&one, &other, &one, &other})
                tick(*scheduler);
            QCOMPARE(told(temperature), QList<int>{9999});
            QCOMPARE(log.lines().size(), 1);
        }
        QFile::remove(path);
    }

    void everySchedulerTellsItsListeners()
    {
        GetData first;
        GetData second;
        QCOMPARE(getData, &first);
        const QSignalSpy ofFirst(&first, &GetData::signal_updateTempData);
        const QSignalSpy ofSecond(&second, &GetData::signal_updateTempData);
        for (const QByteArray temperature : {"00000", "00000", "21000", "21400", "00000"}) {
            Environment::writeDeviceFile(sensor, "temp = " + temperature + ", humidity = 45678\n");
            tick(first);
            tick(second);
        }
        QCOMPARE(told(ofFirst), (QList<int>{0, 21, 0}));
        QCOMPARE(told(ofSecond), (QList<int>{0, 21, 0}));
        tick(first, "refresh_temperatureData"); // tells it whether it changed or not
        QCOMPARE(told(ofFirst), (QList<int>{0, 21, 0, 0}));
    }

    void countersAreShared()
    {
        GetData schedulers[3];
        for (int i = 0; i < 299; ++i)
            tick(schedulers[i % 3]);
        QVERIFY(!QSqlQuery("select * from TempAndHum").next());
        tick(schedulers[0]);
        QCOMPARE(GetData::objects().size(), 4); // the insert has built one
        for (int i = 0; i < 299; ++i)
            tick(*GetData::objects()[i % 4]);
        QCOMPARE(GetData::iTotalTempValue, 299 * 23);
        for (int i = 0; i < 10000; ++i)
            tick(schedulers[i % 3], "get_pmData");
        QSqlQuery rows("select Temp, Hum, PM2_5 from TempAndHum, PM2_5");
        QVERIFY(rows.next() && rows.value(0).toInt() == 23);
        QCOMPARE(rows.value(1).toInt(), 0);              // (46 + 23) / 300
        QVERIFY(qAbs(rows.value(2).toInt() - 249) < 15); // ten times the deviation of the mean
        QVERIFY(!rows.next());
    }

    void samplingWindow()
    {
        GetData scheduler;
        auto *stopTimer = scheduler.findChild<QTimer *>("stopTimer");
        auto *samplingTimer = scheduler.findChild<QTimer *>("samplingTimer");
        QCOMPARE(samplingTimer->interval(), 900000);
        const auto sample = [&] { QMetaObject::invokeMethod(samplingTimer, "timeout"); };
        const MessageLog log;
        sample();
        QCOMPARE(log.lines().last(), QString("待添加错误处理逻辑"));
        const PseudoTerminal line;
        for (int window = 1; window <= 2; ++window) {
            QVERIFY(!stopTimer->isActive());
            sample();
            QCOMPARE(stopTimer->interval(), 10000);
            sample();
            QCOMPARE(log.count("正在手动/app检测PM2.5, 不再次触发"), window);
            stopTimer->setInterval(0);
            QTRY_COMPARE(log.count("UART close!"), window);
        }
    }
};

ZELL_TEST_MAIN(TestGetData)
#include "test_get_data.moc"
