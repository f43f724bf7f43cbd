#include "device/DevicePath.h"
#include "tests/support/Environment.h"

#include <QProcess>

class TestDevicePath : public QObject
{
    Q_OBJECT

private slots:
    void rootIsPutInFront()
    {
        QCOMPARE(devicePath("/dev/Boost_En"), Environment::deviceRoot() + "/dev/Boost_En");
        QCOMPARE(deviceSerialPort("ttyUSB0"), Environment::deviceRoot() + "/dev/ttyUSB0");
    }

    void pathsStandAsTheyAreOnTheDevice()
    {
        const QByteArray root = qgetenv("ZELL_DEVICE_ROOT");
        qunsetenv("ZELL_DEVICE_ROOT");
        QCOMPARE(devicePath("/dev/Boost_En"), QString("/dev/Boost_En"));
        QCOMPARE(deviceSerialPort("ttyUSB0"), QString("ttyUSB0"));
        qputenv("ZELL_DEVICE_ROOT", root);
    }

    void shellSeesOneWord_data()
    {
        QTest::addColumn<QString>("word");
        QTest::newRow("plain") << "abc";
        QTest::newRow("empty") << "";
        QTest::newRow("blanks") << " a  b ";
        QTest::newRow("quotes") << "a'b\"c";
        QTest::newRow("commands") << "$(id);`id`|id&\\";
    }

    void shellSeesOneWord()
    {
        QFETCH(QString, word);
        QProcess shell;
        shell.start("/bin/sh", {"-c", "printf '[%s]' " + shellQuoted(word)});
        QVERIFY(shell.waitForFinished());
        QCOMPARE(QString::fromUtf8(shell.readAllStandardOutput()), "[" + word + "]");
    }
};

ZELL_TEST_MAIN(TestDevicePath)
#include "test_device_path.moc"
