#include "acquisition/PM25Uart.h"
#include "shell/Global_cfg.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/PseudoTerminal.h"
#include "testkit/TableRows.h"

#include <QSerialPort>
#include <QSignalSpy>

class TestPM25Uart : public QObject
{
    Q_OBJECT

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
        Environment::writeDeviceFile("/dev/Boost_En", "0");
        QFile supply(Environment::deviceRoot() + "/dev/Boost_En");
        QVERIFY(supply.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
        const MessageLog log;
        auto uart = std::make_unique<PM25Uart>();
        QVERIFY(!uart->openUart("ttyUSB0"));
        QVERIFY(log.contains("device failed to open: \""));
        auto line = std::make_unique<PseudoTerminal>();
        QVERIFY(uart->openUart("ttyUSB0"));
        QVERIFY(uart->openUart("ttyUSB0")); // the first opening must let go of the line
        QByteArray greeting;
        QTRY_VERIFY((greeting += line->received()).endsWith("UART Test = 9\r\n"));
        const QSignalSpy errors(serialPort(), &QSerialPort::errorOccurred);
        line->pullOut();
        QTRY_VERIFY(!serialPort()->isOpen());
        QCOMPARE(log.count("UART lost"), 1);
        QVERIFY(errors.size() < 10);
        line.reset();
        line = std::make_unique<PseudoTerminal>();
        QVERIFY(uart->openUart("ttyUSB0"));
        QCOMPARE(supply.readAll(), "1");
        uart.reset(); // in the middle of a sampling
        QVERIFY(supply.seek(0));
        QCOMPARE(supply.readAll(), "0");
    }

    // Closing waits for the sensor to take what is on its way, half a minute if it hangs.
    void queuedOutputIsDropped()
    {
        PseudoTerminal line;
        PM25Uart uart;
        QVERIFY(uart.openUart("ttyUSB0"));
        const QByteArray flood(8000, 'x'); // more than the far end takes in unread
        serialPort()->write(flood);
        QTRY_COMPARE(serialPort()->bytesToWrite(), 0);
        uart.closeUart();
        QVERIFY(line.received().size() < flood.size());
    }
};

ZELL_TEST_MAIN(TestPM25Uart)
#include "test_pm25_uart.moc"
