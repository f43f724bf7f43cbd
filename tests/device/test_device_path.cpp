#include "device/DevicePath.h"
#include "testkit/Environment.h"

#include <QProcess>

class TestDevicePath : public QObject
{
    Q_OBJECT

private slots:
    void rootIsPutInFront()
    {
        for (const QByteArray root : {"/tmp/a b", ""}) {
            qputenv("ZELL_DEVICE_ROOT", root);
            QCOMPARE(devicePath("/dev/Boost_En"), root + "/dev/Boost_En");
            QCOMPARE(deviceSerialPort("tty"), root.isEmpty() ? "tty" : root + "/dev/tty");
        }
    }

    void shellSeesOneWord()
    {
        const QString word = " a  b'c\"$(id);`id`|id&\\\n";
        QProcess shell;
        shell.start("/bin/sh",
                    {"-c", "printf '[%s]' " + shellQuoted(word) + ' ' + shellQuoted("")});
        QVERIFY(shell.waitForFinished());
        QCOMPARE(shell.readAllStandardOutput(), "[" + word + "][]");
        QCOMPARE(shellQuoted("/a-b_c.9/Z"), "/a-b_c.9/Z");
    }
};

ZELL_TEST_MAIN(TestDevicePath)
#include "test_device_path.moc"
