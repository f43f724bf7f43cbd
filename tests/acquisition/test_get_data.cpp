#include "acquisition/GetData.h"
#include "store/ZellDatabase.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/PseudoTerminal.h"

#include <QDir>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QTimer>
#include <sys/stat.h>

namespace {
const QString sensor = "/sys/devices/platform/sun5i-i2c.2/i2c-2/2-0044/temp_humidity";

void tick(GetData &scheduler)
{
    QMetaObject::invokeMethod(&scheduler, "refresh_allData");
}

QList<int> told(const QSignalSpy &spy)
{
    QList<int> values;
    for (const QVariantList &arguments : spy)
        values << arguments[0].toInt();
    return values;
}
} // namespace

class TestGetData : public QObject
{
    Q_OBJECT

    std::unique_ptr<ZellDatabase> database;

private slots:
    void init()
    {
        database = std::make_unique<ZellDatabase>();
        zelldatabase = database.get();
        GetData::iTempHumNum = GetData::iTotalTempValue = GetData::iTotalHumValue = 0;
        Environment::writeDeviceFile(sensor, "temp = 23456, humidity = 45678\n");
    }

    void cleanup()
    {
        database.reset();
        QCOMPARE(GetData::objects().size(), 0);
        QFile::remove("ZellQt4.db");
        QDir(Environment::deviceRoot() + "/sys").removeRecursively();
    }

    void fields_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("temperature");
        QTest::addColumn<int>("humidity");
        QTest::newRow("plain") << QByteArray("temp = 23456, humidity = 45678\n") << 23 << 46;
        QTest::newRow("half") << QByteArray("temp = 25499, humidity = 25500\n") << 25 << 26;
        QTest::newRow("cold") << QByteArray("temp = -5600, humidity =  5499\n") << -5 << 5;
        QTest::newRow("to zero") << QByteArray("temp = -1499, humidity = -1500") << 0 << -1;
        QTest::newRow("highest") << QByteArray("temp = 99999, humidity = 99999") << 100 << 100;
        QTest::newRow("not bytes") << QByteArray("°C   = 21000, Feuchte% = 40000") << 21 << 40;
        QTest::newRow("no number") << QByteArray("temp = 2x456, humidity = 45678") << 9999 << 46;
        QTest::newRow("stump") << QByteArray("temp = 23456, humi") << 23 << 9999;
    }

    void fields()
    {
        QFETCH(QByteArray, text);
        const TempHumReading reading = parseTempHum(text);
        QTEST(reading.temperature, "temperature");
        QTEST(reading.humidity, "humidity");
    }

    void limits()
    {
        for (const int degrees : {-41, -40, 100, 101})
            QCOMPARE(validTemperature(degrees) == degrees, degrees >= -40 && degrees <= 100);
        for (const int percent : {-1, 100, 101})
            QCOMPARE(validHumidity(percent), percent > 100 ? 9999 : percent);
        QCOMPARE(validAverage(2000), 2000);
        QCOMPARE(validAverage(2001), 9999);
    }

    void faultySensor_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("short") << QByteArray("temp");
        QTest::newRow("binary") << QByteArray(200, '\xFF');
        QTest::newRow("huge") << QByteArray(64 << 20, '\0');
        QTest::newRow("missing") << QByteArray("-");
        QTest::newRow("folder") << QByteArray("d");
        QTest::newRow("pipe") << QByteArray("p");
    }

    void faultySensor()
    {
        QFETCH(QByteArray, content);
        GetData one;
        GetData other;
        tick(other); // a fault is told afresh after a good reading
        const QString path = Environment::deviceRoot() + sensor;
        Environment::writeDeviceFile(sensor, content);
        QVERIFY(content.size() != 1 || QFile::remove(path));
        QVERIFY(content != "d" || QDir().mkdir(path));
        QVERIFY(content != "p" || mkfifo(qPrintable(path), 0600) == 0);

        QSignalSpy temperature(&one, &GetData::signal_updateTempData);
        MessageLog log;
        for (GetData *scheduler : {&one, &other, &one, &other})
            tick(*scheduler);
        QCOMPARE(told(temperature), QList<int>{9999});
        QCOMPARE(log.lines().size(), 1);
    }

    void everySchedulerTellsItsListeners()
    {
        GetData first;
        GetData second;
        QCOMPARE(getData, &first);
        QSignalSpy ofFirst(&first, &GetData::signal_updateTempData);
        QSignalSpy ofSecond(&second, &GetData::signal_updateTempData);
        for (const QByteArray temperature : {"00000", "00000", "21000", "21400", "00000"}) {
            Environment::writeDeviceFile(sensor, "temp = " + temperature + ", humidity = 45678\n");
            tick(first);
            tick(second);
        }
        QCOMPARE(told(ofFirst), (QList<int>{0, 21, 0}));
        QCOMPARE(told(ofSecond), (QList<int>{0, 21, 0}));
        QCOMPARE(GetData::iLastHumidity, 46);
    }

    void sharedCounterStoresOneRow()
    {
        GetData schedulers[3];
        for (int i = 0; i < 299; ++i)
            tick(schedulers[i % 3]);
        const QString select = "select Temp, Hum, UnixSec from TempAndHum";
        QVERIFY(!QSqlQuery(select).next());
        const time_t before = time(nullptr);
        tick(schedulers[0]);
        QCOMPARE(GetData::objects().size(), 4); // the insert has built one
        QCOMPARE(GetData::iTotalTempValue, 0);
        for (int i = 0; i < 299; ++i)
            tick(*GetData::objects()[i % 4]);
        QSqlQuery rows(select);
        QVERIFY(rows.next());
        QCOMPARE(rows.value(0).toInt(), 23);
        QCOMPARE(rows.value(1).toInt(), 0); // (46 + 23) / 300
        QVERIFY(rows.value(2).toLongLong() >= before);
        QVERIFY(!rows.next());
    }

    void samplingWindow()
    {
        GetData scheduler;
        auto *stopTimer = scheduler.findChild<QTimer *>("stopTimer");
        auto *samplingTimer = scheduler.findChild<QTimer *>("samplingTimer");
        QCOMPARE(samplingTimer->interval(), 900000);
        const auto sample = [&] { QMetaObject::invokeMethod(samplingTimer, "timeout"); };
        MessageLog log;
        sample();
        QCOMPARE(log.lines().last(), QString("待添加错误处理逻辑"));
        QVERIFY(!stopTimer->isActive());

        PseudoTerminal line;
        for (int window = 1; window <= 2; ++window) {
            sample();
            QCOMPARE(stopTimer->interval(), 10000);
            sample();
            QCOMPARE(log.count("正在手动/app检测PM2.5, 不再次触发"), window);
            stopTimer->setInterval(0);
            QTRY_COMPARE(log.count("UART close!"), window);
            QVERIFY(!stopTimer->isActive());
        }
        QCOMPARE(log.count("UART listening for data on"), 2);
    }
};

ZELL_TEST_MAIN(TestGetData)
#include "test_get_data.moc"
