#include "acquisition/GetData.h"
#include "acquisition/PM25Uart.h"
#include "shell/Global_cfg.h"
#include "store/ZellDatabase.h"
#include "testkit/CallSlot.h"
#include "testkit/MessageLog.h"
#include "testkit/PseudoTerminal.h"
#include "testkit/TableRows.h"

#include <QDeadlineTimer>
#include <QSerialPort>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QTimer>
#include <sys/stat.h>

using simulator::replaceFile;

class TestAcquisition : public QObject
{
    Q_OBJECT

    struct Text
    {
        const char *name;
        QByteArray text;
        int temperature, humidity;
    };
    struct Fault
    {
        const char *name;
        void (*make)(const QString &path);
        int temperature = 9999;
    };

    const QString sensor = Environment::device().climateFile();
    const QString supply = Environment::device().supplySwitch();
    std::unique_ptr<ZellDatabase> database;

    static QList<int> told(const QSignalSpy &spy)
    {
        QList<int> values;
        for (const QVariantList &arguments : spy)
            values << arguments[0].toInt();
        return values;
    }

    static void putPipe(const QString &path)
    {
        QFile::remove(path);
        QVERIFY(mkfifo(qPrintable(path), 0600) == 0);
    }

    static void tick(GetData &scheduler) { callSlot(&scheduler, "refresh_allData"); }

    // 0x01020304 at offset 16; sum 0x5A + 0xA5 + 0x04 + 0x03 + 256 * 0x02.
    const QByteArray frame =
        "\x5A\xA5" + QByteArray(14, '\0') + "\x04\x03\x02\x01" + QByteArray(38, '\0') + "\x03\x06";

    QByteArray changed(int index) const
    {
        return QByteArray(frame).replace(index, 1, QByteArray(1, char(frame[index] ^ 1)));
    }

    struct Bursts
    {
        const char *name;
        QByteArrayList sent;
        int values, errors;
    };

    static QSerialPort *serialPort() { return qApp->findChild<QSerialPort *>(); }

private slots:
    void initTestCase() { qputenv("ZELL_SLOW_FILE", "temp_humidity"); }

    void init()
    {
        database = std::make_unique<ZellDatabase>();
        zelldatabase = database.get();
        GetData::iTempHumNum = GetData::iTotalTempValue = 0;
        replaceFile(sensor, "temp = 23456, humidity = 45678\n");
        replaceFile(supply, "0");
    }

    void fields_data()
    {
        addRows<Text>({{"half a unit", "temp = 25499, humidity = 25500\n", 25, 26},
                       {"below zero", "temp = -5600, humidity = -1500", -5, -1},
                       {"whole below zero", "temp = -5000, humidity = -1000", -4, 0},
                       {"highest", "temp = 99999, humidity =  5499", 100, 5},
                       {"other labels", "°C   = 21000, Feuchte% = 40000", 21, 40},
                       {"no number", "temp = 2x456, humidity = 45678", 9999, 46},
                       {"no humidity", "temp = 23456, humi", 23, 9999},
                       {"short humidity", "temp = 23456, humidity = 9876", 23, 10},
                       {"cut temperature", "temp = 2345", 9999, 9999}});
    }

    void fields()
    {
        QFETCH(Text, row);
        const TempHumReading reading = parseTempHum(row.text);
        QCOMPARE(reading.temperature, row.temperature);
        QCOMPARE(reading.humidity, row.humidity);
    }

    void limits()
    {
        QCOMPARE((QList{validTemperature(-41), validTemperature(-40)}), (QList{9999, -40}));
        QCOMPARE((QList{validTemperature(100), validTemperature(101)}), (QList{100, 9999}));
        QCOMPARE((QList{validHumidity(100), validHumidity(101)}), (QList{100, 9999}));
        QCOMPARE((QList{validAverage(2000), validAverage(2001)}), (QList{2000, 9999}));
    }

    void faultySensor_data()
    {
        addRows<Fault>({{"no file", [](const QString &path) { QFile::remove(path); }},
                        {"empty file", [](const QString &path) { replaceFile(path, ""); }},
                        {"endless file",
                         [](const QString &path) { replaceFile(path, QByteArray(64 << 20, 0)); }},
                        {"pipe", putPipe},
                        {"slow", [](const QString &) { qputenv("ZELL_SLOW_MS", "20"); }, 23},
                        {"hanging", [](const QString &) { qputenv("ZELL_SLOW_MS", "900"); }}});
    }

    void faultySensor()
    {
        QFETCH(Fault, row);
        GetData schedulers[4];
        tick(schedulers[0]); // a fault is told afresh after a good reading
        const QSignalSpy temperature(&schedulers[1], &GetData::signal_updateTempData);
        const MessageLog log;
        row.make(sensor);
        const QDeadlineTimer standstill(500);
        for (int i = 0; i < GETDATA_MAX_OBJECTS; ++i)
            tick(schedulers[i % 4]);
        qunsetenv("ZELL_SLOW_MS");
        QVERIFY(!standstill.hasExpired());
        QCOMPARE(told(temperature), QList<int>{row.temperature});
        QCOMPARE(log.lines().size(), row.temperature == 9999 ? 1 : 0);
        replaceFile(sensor, "temp = 21000, humidity = 45678\n");
        QTRY_COMPARE((tick(schedulers[1]), told(temperature).last()), 21);
    }

    void everySchedulerTellsItsListeners()
    {
        GetData first, second;
        QCOMPARE(getData, &first);
        const QSignalSpy ofFirst(&first, &GetData::signal_updateTempData);
        const QSignalSpy ofSecond(&second, &GetData::signal_updateTempData);
        for (const QByteArray temperature : {"00000", "00000", "21000", "21400", "00000"}) {
            replaceFile(sensor, "temp = " + temperature + ", humidity = 45678\n");
            tick(first);
            tick(second);
        }
        QCOMPARE(told(ofFirst), (QList<int>{0, 21, 0}));
        QCOMPARE(told(ofSecond), (QList<int>{0, 21, 0}));
        callSlot(&first, "refresh_temperatureData"); // tells it whether it changed or not
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
            callSlot(&schedulers[i % 3], "get_pmData");
        QSqlQuery rows("select Temp, Hum, PM2_5 from TempAndHum, PM2_5");
        QVERIFY(rows.next());
        QCOMPARE(rows.value(0).toInt(), 23);
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
        // Ends within 50 ms of its time; any other kind of timer may be half a second early.
        QCOMPARE(stopTimer->timerType(), Qt::PreciseTimer);
        const MessageLog log;
        callSlot(samplingTimer, "timeout");
        QCOMPARE(log.lines().last(), "待添加错误处理逻辑");
        const PseudoTerminal line;
        for (int window = 1; window <= 2; ++window) {
            QVERIFY(!stopTimer->isActive());
            callSlot(samplingTimer, "timeout");
            QCOMPARE(stopTimer->interval(), 10000);
            callSlot(samplingTimer, "timeout");
            QCOMPARE(log.count("正在手动/app检测PM2.5, 不再次触发"), window);
            stopTimer->setInterval(0);
            QTRY_COMPARE(log.count("UART close!"), window);
        }
    }

    void overlappingWindowsShareTheLine()
    {
        GetData schedulers[3];
        auto line = std::make_unique<PseudoTerminal>();
        MessageLog log;
        for (GetData &scheduler : schedulers)
            scheduler.start_PM25_samping();
        line.reset();
        QTRY_COMPARE(log.count("UART lost"), 1);
        line = std::make_unique<PseudoTerminal>();
        replaceFile(supply, "0");
        schedulers[0].start_PM25_samping(); // brings the line back to all
        for (int open = 3; open > 0; --open) {
            QCOMPARE(Environment::contentOf(supply), "1");
            log.clear();
            QVERIFY(line->send("burst"));
            QTRY_COMPARE(log.count("UART Rx Data:  \"burst\""), open);
            callSlot(&schedulers[open - 1], "stop_PM25_samping_slot");
        }
        QVERIFY(!line->isOpened());
        QCOMPARE(Environment::contentOf(supply), "0");
    }

    void decodesGoodFramesOnly()
    {
        QByteArray bytes = frame.chopped(1);
        QCOMPARE(PM2_5_dataHandle(&bytes), PM25_ERROR_DATA);
        for (int i = 0; i < frame.size(); ++i) {
            bytes = changed(i);
            const bool summed = i >= 58 || (i < 56 && i % 4 != 3);
            QCOMPARE(PM2_5_dataHandle(&bytes) == PM25_ERROR_DATA, summed);
        }
    }

    void bursts_data()
    {
        addRows<Bursts>({{"good, short, good", {frame, frame.chopped(1), frame}, 2, 0},
                         {"bad checksum or header", {changed(59), changed(0), changed(1)}, 0, 1},
                         {"one byte too many", {frame + 'x', frame}, 1, 0},
                         {"two frames at once", {frame + frame}, 0, 0},
                         {"split frame", {frame.first(20), frame.sliced(20)}, 0, 0}});
    }

    void bursts()
    {
        QFETCH(Bursts, row);
        PseudoTerminal line;
        const MessageLog log;
        PM25Uart uart;
        uart.rxDataReady_slot(); // nothing open: nothing said
        QSignalSpy reported(&uart, &PM25Uart::signal_updatePMData);
        QVERIFY(uart.openUart("ttyUSB0"));
        for (const QByteArray &burst : row.sent) {
            QVERIFY(line.send(burst));
            QVERIFY(reported.wait());
            QCOMPARE(reported.last()[0].toInt(), 1000);
        }
        QCOMPARE(log.count("Read PM2.5 =  999999"), int(row.sent.size()));
        QCOMPARE(log.count("接收到PM2.5数据: 16909060"), row.values);
        QCOMPARE(log.count("Read PM2.5 Error "), row.errors);
        QCOMPARE(log.count("PM2.5 CRC Error =  774"), row.errors);
        uart.rxDataReady_slot();
        QCOMPARE(log.lines().last(), "Read PM2.5 =  999999");
        QCOMPARE(log.count("UART 无数据错误中断！"), 1);
    }

    void lineComesAndGoes()
    {
        const MessageLog log;
        auto uart = std::make_unique<PM25Uart>();
        QVERIFY(QFile::remove(supply));
        QVERIFY(!uart->openUart("ttyUSB0"));
        QVERIFY(log.contains("device failed to open: \""));
        putPipe(supply);
        auto line = std::make_unique<PseudoTerminal>();
        const QString lock =
            "/var/lock/LCK.." + Environment::device().serialDevice().replace('/', '_');
        putPipe(lock);
        QVERIFY(!uart->openUart("ttyUSB0"));
        QVERIFY(log.contains("device failed to open: its lock is no file"));
        QVERIFY(QFile::remove(lock));
        QCOMPARE(log.count("no supply switch"), 1);
        QVERIFY(!QFileInfo(supply).isFile());
        replaceFile(supply, "0");
        QVERIFY(uart->openUart("ttyUSB0"));
        QVERIFY(uart->openUart("ttyUSB0")); // the first opening must let go of the line
        QByteArray greeting;
        QTRY_VERIFY((greeting += line->received()).endsWith("UART Test = 9\r\n"));
        const QSignalSpy errors(serialPort(), &QSerialPort::errorOccurred);
        line->pullOut();
        QTRY_VERIFY(!serialPort()->isOpen());
        QCOMPARE(log.count("UART lost"), 1);
        QVERIFY(errors.size() < 10);
        line = std::make_unique<PseudoTerminal>();
        QVERIFY(uart->openUart("ttyUSB0"));
        QCOMPARE(Environment::contentOf(supply), "1");
        const QByteArray flood(8000, 'x'); // more than the far end takes in unread
        serialPort()->write(flood);
        QTRY_COMPARE(serialPort()->bytesToWrite(), 0);
        uart.reset(); // in the middle of a sampling
        QCOMPARE(Environment::contentOf(supply), "0");
        QVERIFY2(line->received().size() < flood.size(), "a hanging sensor would be waited for");
    }
};

ZELL_TEST_MAIN(TestAcquisition)
#include "test_acquisition.moc"
