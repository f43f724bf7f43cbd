#include "settings/Backlight.h"
#include "settings/adjustLight.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/Touch.h"

#include <QElapsedTimer>
#include <QSlider>

class TestBrightness : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QFile::remove("levels");
        QFile::remove(Environment::deviceRoot() + sensor);
        Environment::writeDeviceScript(tool, "echo \"$@\" >> levels");
        page = std::make_unique<adjustLight>();
        page->show();
        slider = page->findChild<QSlider *>("slider_light");
        automatic = page->findChild<QWidget *>("checkBox_adjustLight");
    }

    void sensorSetsTheLevel()
    {
        const std::tuple<QByteArray, const char *, int> rows[] = {
            {"132", "", 132},
            {"256\n", "256\n", 256},
            {"300", "255\n257\n", 255},
            {"0", "10\n7\n", 10},
            {"8", "8\n", 8},
            {"", "", 132},
            {"12x", "", 132},
            {QByteArray(100000, '1'), "", 132},
        };
        for (const auto &[reading, levels, shown] : rows) {
            init();
            Environment::writeDeviceFile(sensor, reading);
            poll(page.get());
            QCOMPARE(recorded() + reading.left(6), levels + reading.left(6));
            QCOMPARE(slider->value(), shown);
        }
    }

    void sensorIsPolledEverySecond()
    {
        auto *timer = page->findChild<QTimer *>();
        QVERIFY(timer->isActive() && timer->interval() == 1000);
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
        QCOMPARE(slider->styleSheet().count("sliderBackground2.png"), 1);
        Environment::writeDeviceFile(sensor, "90");
        poll(page.get());
        QCOMPARE(recorded(), "255\n257\n");
    }

    void pageLeftBehindFollowsTheSensorAndRepeatsNothing()
    {
        adjustLight former;
        QMetaObject::invokeMethod(&former, "on_button_back_clicked");
        former.empty();
        QTRY_VERIFY(former.findChildren<QWidget *>().isEmpty());
        Environment::writeDeviceFile(sensor, "300");
        poll(page.get());
        poll(&former);
        QCOMPARE(recorded(), "255\n257\n");
        Environment::writeDeviceFile(sensor, "50");
        poll(&former);
        Environment::writeDeviceFile(sensor, "0");
        poll(&former);
        QCOMPARE(recorded(), "255\n257\n50\n10\n7\n");
        Environment::writeDeviceFile(sensor, "60");
        poll(page.get());
        poll(&former);
        // What it has not sent again it has taken in all the same: a level set by hand stays.
        setBacklight(200);
        poll(&former);
        QCOMPARE(recorded(), "255\n257\n50\n10\n7\n60\n200\n");
    }

    void failingToolIsOneLineAndAHangingOneLeftAlone()
    {
        MessageLog log;
        QFile::remove(Environment::deviceRoot() + tool);
        setBacklight(100);
        QCOMPARE(log.lines().size(), 1);
        Environment::writeDeviceScript(tool, "trap '' TERM; sleep 30");
        QElapsedTimer time;
        time.start();
        for (int level = 20; level <= 60; ++level)
            setBacklight(level);
        QVERIFY2(time.elapsed() < 3000, "the screen was held up by each level");
        QCOMPARE(log.lines().size(), 2);
        init();
        QTRY_COMPARE(recorded(), "60\n");
    }

private:
    static QByteArray recorded() { return Environment::contentOf("levels"); }
    // What the timer of the page does, also when the page has been emptied.
    static void poll(adjustLight *of) { of->findChild<BacklightControl *>()->followSensor(); }

    static constexpr const char *tool = "/bin/qtapp/baklight";
    static constexpr const char *sensor = "/sys/devices/virtual/input/input3/light_val";
    std::unique_ptr<adjustLight> page;
    QSlider *slider = nullptr;
    QWidget *automatic = nullptr;
};

ZELL_TEST_MAIN(TestBrightness)
#include "test_brightness.moc"
