#include "acquisition/GetData.h"
#include "mainscreen/BaseScene.h"
#include "mainscreen/MainView.h"
#include "shell/MainWindow.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/PseudoTerminal.h"
#include "tests/support/Touch.h"

#include <QGraphicsPixmapItem>
#include <QGraphicsProxyWidget>
#include <QLabel>
#include <QSignalSpy>
#include <QTimeLine>
#include <QTimer>

namespace {
/// Counts the paint events of a widget.
struct Painted : QObject
{
    explicit Painted(QWidget *widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

constexpr QPoint freeGround(300, 60);
constexpr QPoint pmNumber(330, 240);
} // namespace

class TestMainScreen : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        window = std::make_unique<MainWindow>();
        window->setGeometry(0, 0, 854, 480);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        view = window->findChild<MainView *>();
        timeLine = view->findChild<QTimeLine *>();
        scheduler = view->findChild<GetData *>();
        // Readings come from the tests alone.
        for (GetData *object : GetData::objects())
            object->findChild<QTimer *>("refreshTimer")->stop();
    }

    void swipes()
    {
        const std::tuple<QList<int>, int, int, const char *> rows[] = {
            {{}, -1, -199, "p-h"},  {{0}, -1, -199, "p-h"},         {{-1}, -2, -370, "pt-"},
            {{120}, 0, -29, "-th"}, {{-9, -9, 9}, -1, -199, "p-h"}, {{9, 9, -9}, -1, -199, "p-h"}};
        for (const auto &[distances, expected, backgroundX, shown] : rows) {
            init();
            for (const int distance : distances)
                swipe(distance);
            QCOMPARE(position(), expected);
            QCOMPARE(int(background()->x()), backgroundX);
            QCOMPARE(tiles(), shown);
            QCOMPARE(embedded("label_unit")->isVisible(), expected == 0);
            QVERIFY(!embedded("label_2")->isVisible());
        }
    }

    // The tiles count from 1, the strip from 0: this is where they lead on this device.
    void tileTaps()
    {
        const std::tuple<int, const char *, int> taps[] = {
            {-1, "frame_pm", -1},          {-2, "frame_pm", -1},       {0, "frame_temperature", -2},
            {-2, "frame_temperature", -2}, {-1, "frame_humidity", -3}, {0, "frame_humidity", -3}};
        for (const auto &[from, tile, expected] : taps) {
            init();
            swipeTo(from);
            const QString before = tiles();
            tap(tile);
            endSlide();
            QVERIFY2(position() == expected && tiles() == before, tile);
            if (position() == -3)
                QCOMPARE(window->grab().toImage().pixelColor(850, 479), QColor(0x07, 0x0b, 0x0e));
        }
    }

    void overlayKeepsItsOwnPresses()
    {
        for (const char *name : {"frame_pm", "button_wifi", "button_power", "frame_history"}) {
            const QPoint place = centre(name);
            drag(window.get(), place, place - QPoint(70, 0));
            QCOMPARE(timeLine->state(), QTimeLine::NotRunning);
        }
        // Between the tiles lies the page; its press leaves nothing behind that catches the next.
        drag(window.get(), {647, 240}, {600, 240});
        endSlide();
        QCOMPARE(position(), -2);
        QSignalSpy options(view->overlay(), &BaseScene::signal_jumpToOption);
        tap("button_option");
        QCOMPARE(options.count(), 1);
    }

    void readingsReachTilesAndPages()
    {
        const QRegularExpression ours("^(Error|BaseScene|不可置信|\"\\w+Page\" has no)");
        MessageLog log;
        const std::tuple<int, const char *, bool, int> steps[] = {
            {0, "0", true, 329},          {-5, "-5", true, 329},
            {9999, "", false, 225},       {INT_MIN, "-2147483648", false, 329},
            {10000, "10000", false, 329}, {1023, "1023", false, 433}};
        for (const auto &[reading, text, levels, width] : steps) {
            report(reading);
            for (const char *name : {"label_pValue", "label_tValue", "label_hValue"}) {
                const auto *label = qobject_cast<QLabel *>(embedded(name));
                QCOMPARE(label->text(), text);
                QCOMPARE(label->pixmap(Qt::ReturnByValue).isNull(), reading != 9999);
            }
            // What 9999 takes away does not come back.
            for (const char *name :
                 {"label_pTips", "label_tTips", "label_hTips", "label_3", "label_4"})
                QCOMPARE(!embedded(name)->isHidden(), levels);
            // The first page is that of PM2.5; its row is as wide as what it shows.
            QCOMPARE(embedded("frame_value")->width(), width);
            window->grab();
        }
        for (const QString &line : log.lines())
            QVERIFY2(ours.match(line).hasMatch(), qPrintable(line));
    }

    void tapOnTheNumberMeasures()
    {
        const PseudoTerminal terminal;
        Environment::writeDeviceFile("/dev/Boost_En", "0");
        swipeTo(0);
        MessageLog log;
        tapAt(window.get(), pmNumber);
        auto *animation = embedded("PmAnimation");
        QVERIFY(animation->isVisible() && !embedded("frame_center")->isVisible());
        QCOMPARE(supply(), QByteArray("1"));
        tapAt(window.get(), pmNumber - QPoint(60, 0));
        QCOMPARE(log.count("启动PM2.5检测"), 2);
        QVERIFY(!log.contains("待添加错误处理逻辑"));

        for (GetData *object : GetData::objects()) {
            auto *timer = object->findChild<QTimer *>("stopTimer");
            if (timer->isActive() && timer->interval() == 10000)
                QMetaObject::invokeMethod(object, "stop_PM25_samping_slot");
        }
        QCOMPARE(supply(), QByteArray("0"));
        QVERIFY(animation->isVisible());
        QMetaObject::invokeMethod(animation->parentWidget(), "update_pmData", Q_ARG(int, 35));
        QVERIFY(log.contains("update_pmData 35"));
        QVERIFY(!animation->isVisible() && embedded("frame_center")->isVisible());
    }

    void slideDrawsNoPageAgain()
    {
        const QImage before = window->grab().toImage();
        // Applied anew, the style sheet must not put anything behind the transparent pages.
        const QString sheet = qApp->styleSheet();
        qApp->setStyleSheet({});
        qApp->setStyleSheet(sheet);
        for (const int page : {-2, 0, -1})
            swipeTo(page);
        QCOMPARE(window->grab().toImage(), before);
        swipeTo(0);
        const Painted pm(embedded("PmPage"));
        const Painted temperature(embedded("TemperaturePage"));
        const Painted side(embedded("frame_side"));
        drag(window.get(), freeGround, freeGround - QPoint(80, 0));
        QTRY_VERIFY(pageX() < 0);
        // While it slides nothing else is taken.
        drag(window.get(), freeGround, freeGround - QPoint(80, 0));
        drag(window.get(), freeGround, freeGround + QPoint(80, 0));
        tap("frame_humidity");
        QTRY_COMPARE(timeLine->state(), QTimeLine::NotRunning);
        QCOMPARE(position(), -1);
        QCOMPARE(tiles(), "p-h");
        QCOMPARE(timeLine->duration(), 500);
        QCOMPARE(pm.count + temperature.count + side.count, 0);
        QVERIFY(!background()->pixmap().hasAlphaChannel());
    }

    void idleScreenPaintsNothing()
    {
        const Painted viewport(view->viewport());
        QTimer frame;
        QSignalSpy frames(&frame, &QTimer::timeout);
        frame.start(20);
        const auto paintsUntilQuiet = [&] {
            int seen = -1;
            while (std::exchange(seen, viewport.count) != viewport.count)
                frames.wait();
            return seen;
        };
        QMetaObject::invokeMethod(scheduler, "refresh_allData");
        const int before = paintsUntilQuiet();
        QMetaObject::invokeMethod(scheduler, "refresh_allData");
        QCOMPARE(paintsUntilQuiet(), before);
        report(7);
        QVERIFY(paintsUntilQuiet() > before);
    }

    void historySlidesInAndBack()
    {
        auto *history = embedded("page_history");
        for (const char *button : {"button_history", "button_historyLogo"}) {
            tap(button);
            QTRY_COMPARE(history->geometry(), QRect(0, 0, 854, 480));
            QTRY_VERIFY(!embedded("page_scene")->isVisible());
            // A finger on the chart explores it; the page below does not move.
            pressAt(window.get(), {400, 300});
            QTRY_VERIFY(!embedded("frame_top")->isVisible());
            moveTo(window.get(), {300, 300});
            releaseAt(window.get(), {300, 300});
            QTRY_VERIFY(embedded("frame_top")->isVisible());
            QCOMPARE(timeLine->state(), QTimeLine::NotRunning);
            tapAt(window.get(), {47, 40});
            QVERIFY(!history->isVisible() && embedded("page_scene")->isVisible());
        }
    }

private:
    /// The widget of that name, of the pages in their order or of the overlay.
    QWidget *embedded(const QByteArray &name) const
    {
        for (QGraphicsItem *item : view->scene()->items(Qt::AscendingOrder)) {
            if (auto *proxy = dynamic_cast<QGraphicsProxyWidget *>(item)) {
                QWidget *page = proxy->widget();
                if (page->objectName() == name)
                    return page;
                if (auto *child = page->findChild<QWidget *>(name))
                    return child;
            }
        }
        return nullptr;
    }

    const QGraphicsPixmapItem *background() const
    {
        for (QGraphicsItem *item : view->scene()->items()) {
            if (const auto *picture = dynamic_cast<QGraphicsPixmapItem *>(item))
                return picture;
        }
        return nullptr;
    }

    QPoint centre(const QByteArray &name) const
    {
        const QWidget *widget = embedded(name);
        return widget->mapTo(widget->window(), widget->rect().center());
    }

    void tap(const QByteArray &name) { tapAt(window.get(), centre(name)); }
    int pageX() const { return int(embedded("PmPage")->graphicsProxyWidget()->x()); }
    int position() const { return pageX() / 854; }

    QString tiles() const
    {
        QString shown;
        for (const char *name : {"pm", "temperature", "humidity"})
            shown += embedded(QByteArray("frame_") + name)->isVisible() ? name[0] : '-';
        return shown;
    }

    void endSlide()
    {
        if (timeLine->state() == QTimeLine::Running)
            timeLine->setCurrentTime(timeLine->duration());
        QTRY_COMPARE(timeLine->state(), QTimeLine::NotRunning);
    }

    void swipe(int distance)
    {
        drag(window.get(), freeGround, freeGround + QPoint(distance, 90));
        endSlide();
    }

    void swipeTo(int wanted)
    {
        for (int tries = 0; position() != wanted && tries < 3; ++tries)
            swipe(position() > wanted ? -80 : 80);
    }

    void report(int reading)
    {
        emit scheduler->signal_updatePMData(reading);
        emit scheduler->signal_updateTempData(reading);
        emit scheduler->signal_updateHumData(reading);
    }

    static QByteArray supply()
    {
        QFile file(Environment::deviceRoot() + "/dev/Boost_En");
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<MainWindow> window;
    MainView *view = nullptr;
    QTimeLine *timeLine = nullptr;
    GetData *scheduler = nullptr;
};

ZELL_TEST_MAIN(TestMainScreen)
#include "test_main_screen.moc"
