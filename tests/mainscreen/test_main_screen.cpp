#include "acquisition/GetData.h"
#include "mainscreen/BaseScene.h"
#include "mainscreen/MainView.h"
#include "shell/MainWindow.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/PseudoTerminal.h"
#include "testkit/Touch.h"

#include <QGraphicsProxyWidget>
#include <QLabel>
#include <QSignalSpy>
#include <QTimeLine>
#include <QTimer>

namespace {
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
        // Readings come from the tests alone.
        for (GetData *object : GetData::objects())
            object->findChild<QTimer *>("refreshTimer")->stop();
    }

    void swipesAndTileTaps()
    {
        // The tiles count from 1, the strip from 0: this is where they lead on this device.
        const std::tuple<QList<int>, const char *, int, int, const char *> rows[] = {
            {{0}, "", -1, -199, "p-h"},
            {{-1}, "", -2, -370, "pt-"},
            {{120}, "", 0, -29, "-th"},
            {{-9, -9, 9}, "", -1, -199, "p-h"},
            {{9, 9, -9}, "", -1, -199, "p-h"},
            {{}, "frame_pm", -1, -199, "p-h"},
            {{-9}, "frame_pm", -1, -199, "pt-"},
            {{9}, "frame_temperature", -2, -370, "-th"},
            {{-9}, "frame_temperature", -2, -370, "pt-"},
            {{}, "frame_humidity", -3, -541, "p-h"},
            {{9}, "frame_humidity", -3, -541, "-th"}};
        for (const auto &[distances, tile, expected, backgroundX, shown] : rows) {
            init();
            std::ranges::for_each(distances, [this](int distance) { swipe(distance); });
            if (*tile != 0)
                tap(tile);
            endSlide();
            QCOMPARE(position(), expected);
            // The background lies below everything else.
            QCOMPARE(int(view->scene()->items(Qt::AscendingOrder).first()->x()), backgroundX);
            QCOMPARE(tiles(), shown);
            QCOMPARE(embedded("label_unit")->isVisible(), *shown == '-');
            QVERIFY(!embedded("label_2")->isVisible());
        }
        QCOMPARE(window->grab().toImage().pixelColor(850, 479), QColor(0x07, 0x0b, 0x0e));
    }

    void overlayKeepsItsOwnPresses()
    {
        for (const char *name : {"frame_pm", "button_wifi", "button_power", "frame_history"})
            drag(window.get(), centre(name), centre(name) - QPoint(70, 0));
        QCOMPARE(timeLine->state(), QTimeLine::NotRunning);
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
        auto *scheduler = view->findChild<GetData *>();
        const std::tuple<int, const char *, bool, int> steps[] = {
            {0, "0", true, 329},          {-5, "-5", true, 329},
            {9999, "", false, 225},       {INT_MIN, "-2147483648", false, 329},
            {10000, "10000", false, 329}, {1023, "1023", false, 433}};
        for (const auto &[reading, text, levels, width] : steps) {
            emit scheduler->signal_updatePMData(reading);
            emit scheduler->signal_updateTempData(reading);
            emit scheduler->signal_updateHumData(reading);
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
        }
    }

    void tapOnTheNumberMeasures()
    {
        const PseudoTerminal terminal;
        Environment::writeDeviceFile("/dev/Boost_En", "0");
        swipe(9);
        MessageLog log;
        auto *animation = embedded("PmAnimation");
        // The second tap meets the sensor's picture.
        for (const QPoint place : {pmNumber, pmNumber - QPoint(60, 0)}) {
            tapAt(window.get(), place);
            QVERIFY(animation->isVisible() && !embedded("frame_center")->isVisible());
        }
        QCOMPARE(log.count("启动PM2.5检测"), 2);
        QVERIFY(!log.contains("待添加错误处理逻辑"));
        QMetaObject::invokeMethod(animation->parentWidget(), "update_pmData", Q_ARG(int, 35));
        QVERIFY(log.contains("update_pmData 35"));
        QVERIFY(!animation->isVisible() && embedded("frame_center")->isVisible());
    }

    void aSlideTakesNothingElseAndChangesNoPicture()
    {
        QCOMPARE(std::pair(timeLine->startFrame(), timeLine->endFrame()), std::pair(0, 100));
        const QImage before = window->grab().toImage();
        // Applied anew, the style sheet must not put anything behind the transparent pages.
        qApp->setStyleSheet(qApp->styleSheet() + QStringLiteral("QDial {color: red}"));
        for (const int distance : {-9, 9, 9, -9})
            swipe(distance);
        QCOMPARE(window->grab().toImage(), before);
        drag(window.get(), freeGround, freeGround - QPoint(80, 0));
        QTRY_VERIFY(position() < -1);
        // While it slides nothing else is taken.
        for (const int distance : {-80, 80})
            drag(window.get(), freeGround, freeGround + QPoint(distance, 0));
        tap("frame_pm");
        QTRY_COMPARE(timeLine->state(), QTimeLine::NotRunning);
        QCOMPARE(position(), -2);
        QCOMPARE(tiles(), "pt-");
        QCOMPARE(timeLine->duration(), 500);
    }

    void historySlidesInAndBack()
    {
        auto *history = embedded("page_history");
        for (const char *button : {"button_history", "button_historyLogo"}) {
            tap(button);
            QTRY_COMPARE(history->geometry(), QRect(0, 0, 854, 480));
            QTRY_VERIFY(!embedded("page_scene")->isVisible());
            // A finger on the chart explores it; the page below does not move.
            drag(window.get(), {400, 300}, {300, 300});
            QCOMPARE(timeLine->state(), QTimeLine::NotRunning);
            QTRY_VERIFY(embedded("frame_top")->isVisible());
            tapAt(window.get(), {47, 40});
            QVERIFY(!history->isVisible() && embedded("page_scene")->isVisible());
        }
    }

private:
    /// The widget of that name, of the pages in their order or of the overlay.
    QWidget *embedded(const char *name) const
    {
        QWidget *found = nullptr;
        for (QGraphicsItem *item : view->scene()->items(Qt::AscendingOrder)) {
            if (item->isWidget() && found == nullptr)
                found =
                    static_cast<QGraphicsProxyWidget *>(item)->widget()->findChild<QWidget *>(name);
        }
        return found;
    }

    QPoint centre(const char *name) const
    {
        const QWidget *widget = embedded(name);
        return widget->mapTo(widget->window(), widget->rect().center());
    }

    void tap(const char *name) { tapAt(window.get(), centre(name)); }
    double position() const
    {
        return embedded("frame_center")->window()->graphicsProxyWidget()->x() / 854;
    }

    QString tiles() const
    {
        QString shown;
        for (const char *name : {"frame_pm", "frame_temperature", "frame_humidity"})
            shown += embedded(name)->isVisible() ? name[6] : '-';
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

    std::unique_ptr<MainWindow> window;
    MainView *view = nullptr;
    QTimeLine *timeLine = nullptr;
};

ZELL_TEST_MAIN(TestMainScreen)
#include "test_main_screen.moc"
