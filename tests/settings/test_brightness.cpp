#include "settings/Backlight.h"
#include "settings/adjustLight.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/Touch.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QSlider>

namespace {
const char *const tool = "/bin/qtapp/baklight";
const char *const sensor = "/sys/devices/virtual/input/input3/light_val";
} // namespace

class TestBrightness : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QFile::remove(records());
        QFile::remove(Environment::deviceRoot() + sensor);
        writeTool("echo \"$@\" >> '" + QFile::encodeName(records()) + "'");
        page = std::make_unique<adjustLight>();
        page->show();
        slider = page->findChild<QSlider *>("slider_light");
        automatic = page->findChild<QCheckBox *>("checkBox_adjustLight");
    }

    void sensorSetsTheLevel_data()
    {
        QTest::addColumn<QByteArray>("reading");
        QTest::addColumn<QByteArray>("levels");
        QTest::addColumn<int>("shown");
        QTest::newRow("inside") << QByteArray("200\n") << QByteArray("200\n") << 200;
        QTest::newRow("the same") << QByteArray("132") << QByteArray() << 132;
        QTest::newRow("above") << QByteArray("300") << QByteArray("255\n257\n") << 255;
        QTest::newRow("256") << QByteArray("256") << QByteArray("256\n") << 256;
        QTest::newRow("below") << QByteArray("0") << QByteArray("10\n7\n") << 10;
        QTest::newRow("negative") << QByteArray("-5") << QByteArray("10\n7\n") << 10;
        QTest::newRow("8 is no end") << QByteArray("8") << QByteArray("8\n") << 8;
        QTest::newRow("empty") << QByteArray() << QByteArray() << 132;
        QTest::newRow("garbage") << QByteArray("12x") << QByteArray() << 132;
        QTest::newRow("too large") << QByteArray("99999999999") << QByteArray() << 132;
        QTest::newRow("endless") << QByteArray(100000, '1') << QByteArray() << 132;
    }

    void sensorSetsTheLevel()
    {
        QFETCH(QByteArray, reading);
        Environment::writeDeviceFile(sensor, reading);
        poll(page.get());
        QTEST(recorded(), "levels");
        QTEST(slider->value(), "shown");
        automatic->click();
        Environment::writeDeviceFile(sensor, "90");
        poll(page.get());
        QTEST(recorded(), "levels");
    }

    void sensorIsPolledEverySecond()
    {
        auto *timer = page->findChild<QTimer *>();
        QVERIFY(timer->isActive());
        QCOMPARE(timer->interval(), 1000);
        timer->setInterval(1);
        MessageLog log;
        QTRY_COMPARE(log.count("light sensor"), 1);
        Environment::writeDeviceFile(sensor, "77");
        QTRY_COMPARE(recorded(), "77\n");
        QCOMPARE(log.count("light sensor"), 1);
    }

    void fingerMovesTheSliderOnceAutomaticIsOff()
    {
        const QPoint handle = slider->mapTo(page.get(), slider->rect().center());
        drag(page.get(), handle, handle + QPoint(100, 0));
        QCOMPARE(slider->value(), 132);
        tap(automatic);
        drag(page.get(), handle, handle + QPoint(400, 0), 1);
        QCOMPARE(recorded(), "255\n257\n");
        QVERIFY(slider->styleSheet().contains("sliderFront.png) 0 6"));
        QCOMPARE(slider->styleSheet().count("sliderBackground2.png"), 1);
        tap(automatic);
        QVERIFY(!slider->isEnabled());
    }

    void pagesLeftBehindRepeatNothing()
    {
        adjustLight former;
        QMetaObject::invokeMethod(&former, "on_button_back_clicked");
        Environment::writeDeviceFile(sensor, "300");
        poll(page.get());
        poll(&former);
        QCOMPARE(recorded(), "255\n257\n");
        Environment::writeDeviceFile(sensor, "50");
        poll(&former);
        QCOMPARE(recorded(), "255\n257\n50\n");
    }

    void failingToolIsOneLine_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::newRow("fails") << QByteArray("exit 3");
        QTest::newRow("missing") << QByteArray();
    }

    void failingToolIsOneLine()
    {
        QFETCH(QByteArray, script);
        writeTool(script);
        if (script.isEmpty())
            QFile::remove(Environment::deviceRoot() + tool);
        MessageLog log;
        setBacklight(100);
        QCOMPARE(log.lines().size(), 1);
        QVERIFY(log.contains("level 100"));
    }

    void hangingToolIsLeftAloneForAWhile()
    {
        writeTool("trap '' TERM; sleep 30");
        MessageLog log;
        QElapsedTimer time;
        time.start();
        for (int level = 20; level <= 60; ++level)
            setBacklight(level);
        QVERIFY2(time.elapsed() < 3000, "the screen was held up by each level");
        QCOMPARE(log.lines().size(), 1);
        init();
        QTRY_COMPARE(recorded(), "60\n");
        QCOMPARE(backlightLevel(), 60);
    }

private:
    static QString records() { return Environment::deviceRoot() + "/levels"; }

    static QByteArray recorded()
    {
        QFile file(records());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void writeTool(const QByteArray &script)
    {
        Environment::writeDeviceFile(tool, "#!/bin/sh\n" + script + "\n");
        QFile::setPermissions(Environment::deviceRoot() + tool,
                              QFile::ReadUser | QFile::ExeUser | QFile::WriteUser);
    }

    static void poll(adjustLight *of) { QMetaObject::invokeMethod(of, "cause_lightUpdate"); }

    std::unique_ptr<adjustLight> page;
    QSlider *slider = nullptr;
    QCheckBox *automatic = nullptr;
};

ZELL_TEST_MAIN(TestBrightness)
#include "test_brightness.moc"
