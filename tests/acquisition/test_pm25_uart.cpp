#include "acquisition/PM25Uart.h"
#include "shell/Global_cfg.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/PseudoTerminal.h"

#include <QSignalSpy>

class TestPM25Uart : public QObject
{
    Q_OBJECT

    // 0x01020304 at offset 16; sum 0x5A + 0xA5 + 0x04 + 0x03 + 256 * 0x02.
    const QByteArray frame =
        "\x5A\xA5" + QByteArray(14, '\0') + "\x04\x03\x02\x01" + QByteArray(38, '\0') + "\x03\x06";

    static QByteArray changed(QByteArray bytes, int index)
    {
        bytes[index] = char(bytes[index] ^ 1);
        return bytes;
    }

    static QByteArray supply()
    {
        QFile file(Environment::deviceRoot() + "/dev/Boost_En");
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }

private slots:
    void init() { Environment::writeDeviceFile("/dev/Boost_En", "0"); }

    void decodesGoodFramesOnly()
    {
        QByteArray bytes = frame;
        QCOMPARE(PM2_5_dataHandle(&bytes), 0x01020304);
        bytes.chop(1);
        QCOMPARE(PM2_5_dataHandle(&bytes), PM25_ERROR_DATA);
        QCOMPARE(PM2_5_dataHandle(nullptr), PM25_ERROR_DATA);
        for (int i = 0; i < frame.size(); ++i) {
            bytes = changed(frame, i);
            const bool refused = PM2_5_dataHandle(&bytes) == PM25_ERROR_DATA;
            const bool summed = i >= 58 || (i < 56 && i % 4 != 3);
            QVERIFY2(refused == summed, qPrintable(QString::number(i)));
        }
        bytes = "\x5A\xA5" + QByteArray(58, '\xFF');
        QCOMPARE(pm25Checksum(bytes), quint16(0x0CE5)); // truncated to 16 bits again and again
    }

    void bursts_data()
    {
        using List = QByteArrayList;
        QTest::addColumn<List>("sent");
        QTest::addColumn<int>("values");
        QTest::addColumn<int>("errors");
        QTest::newRow("two frames") << List{frame, frame} << 2 << 0;
        QTest::newRow("bad checksum") << List{changed(frame, 59)} << 0 << 1;
        QTest::newRow("bad header") << List{changed(frame, 0), changed(frame, 1)} << 0 << 0;
        QTest::newRow("59 bytes") << List{frame.chopped(1)} << 0 << 0;
        QTest::newRow("61 bytes") << List{frame + 'x', frame} << 1 << 0;
        QTest::newRow("merged") << List{frame + frame} << 0 << 0;
        QTest::newRow("split") << List{frame.first(20), frame.sliced(20)} << 0 << 0;
    }

    void bursts()
    {
        QFETCH(QByteArrayList, sent);
        PseudoTerminal line;
        MessageLog log;
        PM25Uart uart;
        QSignalSpy reported(&uart, &PM25Uart::signal_updatePMData);
        QVERIFY(uart.openUart("ttyUSB0"));
        for (int i = 0; i < sent.size(); ++i) {
            QVERIFY(line.send(sent[i]));
            QTRY_COMPARE(reported.size(), i + 1);
            QCOMPARE(reported[i][0].toInt(), 1000);
            QVERIFY(log.contains(QString("UART Rx Data Num = %1").arg(sent[i].size())));
        }
        QCOMPARE(log.count("Read PM2.5 =  999999"), int(sent.size()));
        QTEST(log.count("接收到PM2.5数据: 16909060"), "values");
        QTEST(log.count("Read PM2.5 Error "), "errors");
        QTEST(log.count("PM2.5 CRC Error =  774"), "errors");
    }

    void opensAndCloses()
    {
        MessageLog log;
        PM25Uart uart;
        QVERIFY(!uart.openUart("ttyUSB0"));
        QCOMPARE(log.count("device failed to open: \""), 1);
        PseudoTerminal line;
        for (const char *round : {"first", "while open"}) {
            QVERIFY2(uart.openUart("ttyUSB0"), round);
            QCOMPARE(supply(), QByteArray("1"));
            QByteArray greeting;
            QTRY_VERIFY((greeting += line.received()).endsWith("UART Test = 9\r\n"));
        }
        uart.closeUart();
        QCOMPARE(supply(), QByteArray("0"));
        QVERIFY(PM25Uart().openUart("ttyUSB0"));
        QCOMPARE(supply(), QByteArray("0")); // gone in mid-window
    }

    void hangUp()
    {
        PM25Uart uart;
        auto line = std::make_unique<PseudoTerminal>();
        QVERIFY(uart.openUart("ttyUSB0"));
        auto *port = uart.findChild<QSerialPort *>();
        QSignalSpy errors(port, &QSerialPort::errorOccurred);
        MessageLog log;
        line->hangUp();
        QTRY_VERIFY(!port->isOpen());
        QCOMPARE(log.count("UART lost"), 1);
        QVERIFY2(errors.size() < 10, "the error is served in a loop");
        line.reset();
        line = std::make_unique<PseudoTerminal>();
        QVERIFY(uart.openUart("ttyUSB0"));
        line->send(frame);
        QTRY_COMPARE(log.count("接收到PM2.5数据:"), 1);
    }
};

ZELL_TEST_MAIN(TestPM25Uart)
#include "test_pm25_uart.moc"
