#include "settings/DateTimePage.h"
#include "settings/OptionPage.h"
#include "settings/SetTimePage.h"
#include "settings/nightModePage.h"
#include "settings/timePage.h"
#include "tests/settings/SpinnerRows.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/Touch.h"

#include <QDateTime>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <memory>

namespace {
/// Counts how often a widget is painted.
struct PaintCount : QObject
{
    explicit PaintCount(QObject *watched) { watched->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int paints = 0;
};
} // namespace

class TestTimePages : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        log = std::make_unique<MessageLog>();
        menu = std::make_unique<OptionPage>();
        menu->show();
    }

    void cleanup()
    {
        menu.reset();
        QCOMPARE(DateTimePage::instance, nullptr);
        QCOMPARE(log->lines(), QStringList());
        log.reset();
    }

    void clockSwitchChoosesTextAndWheels_data()
    {
        QTest::addColumn<bool>("use24Hour");
        QTest::addColumn<QString>("format");
        QTest::addColumn<QRect>("hour");
        QTest::newRow("24 hours") << true << "yyyy-MM-dd HH:mm" << QRect(452, 98, 150, 320);
        QTest::newRow("12 hours") << false << "yyyy-MM-dd hh:mm AP" << QRect(362, 98, 150, 320);
    }

    void clockSwitchChoosesTextAndWheels()
    {
        QFETCH(bool, use24Hour);
        QFETCH(QString, format);
        openSetTime();
        if (!use24Hour)
            tap(shown("checkBox_24Hours"));
        QTRY_VERIFY(clockShows(format));
        QCOMPARE(shown("button_on")->styleSheet().contains("#00e5ff"), use24Hour);

        const QTime before = QTime::currentTime();
        tap(shown("button_dateTime"));
        QTEST(onScreen("widget_hour"), "hour");
        QCOMPARE(shown("widget_amp") == nullptr, use24Hour);
        const QTime wheels = wheelTime(use24Hour);
        QVERIFY(wheels == QTime(before.hour(), before.minute()) ||
                wheels == QTime(QTime::currentTime().hour(), QTime::currentTime().minute()));
        for (const char *name : {"widget_date", "widget_hour", "widget_min"}) {
            QCOMPARE(onScreen(name).y(), 98);
            QCOMPARE(spinnerRows(wheel(name)).size(), 7);
        }
        if (!use24Hour)
            QCOMPARE(onScreen("widget_amp"), QRect(662, 173, 150, 160));
        tap(shown("button_back"));
        QTRY_VERIFY(clockShows(format));
    }

    void chosenDateLeavesThePageNowhere()
    {
        openSetTime();
        tap(shown("button_dateTime"));
        QCOMPARE(wheel("widget_date")->currentIndex(), 0);
        const QDate today = QDate::currentDate();
        QVERIFY(currentText(wheel("widget_date")).startsWith(today.toString("MM月dd日 ")));
        QTest::keyClick(wheel("widget_date"), Qt::Key_Up);
        QCOMPARE(wheel("widget_date")->currentIndex(), 364);
        QVERIFY(
            currentText(wheel("widget_date")).startsWith(today.addDays(-1).toString("MM月dd日")));
        const int minute = wheel("widget_min")->currentIndex();
        drag(menu.get(), {687, 330}, {687, 230}, 8);
        QTRY_VERIFY(wheel("widget_min")->currentIndex() != minute);
        tap(shown("button_back"));
        QTRY_VERIFY(clockShows("yyyy-MM-dd HH:mm"));

        tap(shown("button_dateTime"));
        QCOMPARE(wheel("widget_date")->currentIndex(), 0);
    }

    void dateTimePageMovesToItsOpener()
    {
        QList<QWidget *> holders;
        QPointer<DateTimePage> page;
        for (int visit = 0; visit < 3; ++visit) {
            openSetTime();
            tap(shown("button_dateTime"));
            QVERIFY(DateTimePage::instance->isVisible());
            if (visit == 0)
                page = DateTimePage::instance;
            QCOMPARE(page, DateTimePage::instance);
            QCOMPARE(menu->findChildren<DateTimePage *>().size(), 1);
            holders << DateTimePage::instance->parentWidget();
            QCOMPARE(holders.count(holders.last()), 1);
            for (const char *name : {"widget_date", "widget_hour", "widget_min"})
                QTRY_VERIFY2(accentPixels(onScreen(name)) > 50, name);
            tap(shown("button_back"));
            QVERIFY(!DateTimePage::instance->isVisible());
            tap(shown("button_back"));
            QVERIFY(menu->is_allowed_slide());
            log->clear();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        QCOMPARE(menu->findChildren<SetTimePage *>().size(), 3);
    }

    void idleAndLeftPagesArePaintedNoMore()
    {
        openSetTime();
        auto *first = menu->findChild<SetTimePage *>();
        tap(shown("button_back"));
        QTRY_COMPARE(first->findChildren<QWidget *>().size(), 0);
        PaintCount left(first);
        openSetTime();
        QVERIFY(first->isVisible());
        PaintCount idle(menu->findChildren<SetTimePage *>().last());
        QTRY_VERIFY(idle.paints > 0);

        QTimer frames;
        int passed = 0;
        connect(&frames, &QTimer::timeout, this, [&] {
            if (++passed == 10)
                idle.paints = 0;
        });
        frames.start(16);
        QTRY_VERIFY(passed >= 40);
        QCOMPARE(idle.paints, 0);
        QCOMPARE(left.paints, 0);
    }

    void nightRowsFollowTheSwitch()
    {
        openNightMode();
        for (const bool on : {true, false, true}) {
            QCOMPARE(shown("frame_startTime") != nullptr, on);
            QCOMPARE(shown("frame_finishTime") != nullptr, on);
            QCOMPARE(shown("button_close")->styleSheet().contains("#ffffff"), !on);
            tap(shown("checkBox_nightMode"));
        }
        tap(shown("button_setNightMode"));
        QVERIFY(!shown("frame_startTime"));
        tap(shown("button_back"));
        openNightMode();
        QVERIFY(shown("frame_startTime"));
    }

    void bothTimesOpenAFreshPage()
    {
        openNightMode();
        auto *page = menu->findChild<nightModePage *>();
        int visits = 0;
        for (const char *button : {"button_startTime", "button_finishTime"}) {
            tap(shown(button));
            QCOMPARE(page->findChildren<timePage *>().size(), ++visits);
            QCOMPARE(wheelTime(true), QTime(22, 30));
            QVERIFY(!shown("widget_amp"));
            QVERIFY(shown("pushButton_start")->styleSheet().contains("/button.png"));
            QTest::keyClick(wheel("widget_hour"), Qt::Key_Down);
            tap(shown("pushButton_finish"));
            tap(shown("button_back"));
            QVERIFY(shown("frame_startTime"));
        }
    }

    void selectorMarksOneSide()
    {
        const QString selected = "border-image: url(:/resource/images/optionPage/nightPattern/"
                                 "button.png);\nfont: 24px;\ncolor:#212121;";
        const QString other = "border-image: url(:/resource/images/optionPage/nightPattern/"
                              "unbutton.png);\nfont: 24px;\ncolor:#FFFFFF;";
        openNightMode();
        tap(shown("button_startTime"));
        for (const bool finish : {false, true, false}) {
            QCOMPARE(shown("pushButton_start")->styleSheet(), finish ? other : selected);
            QCOMPARE(shown("pushButton_finish")->styleSheet(), finish ? selected : other);
            tap(shown(finish ? "pushButton_start" : "pushButton_finish"));
        }
    }

    void onlyThePageOnTheScreenShowsWheels()
    {
        openNightMode();
        for (int visit = 0; visit < 3; ++visit) {
            tap(shown("button_startTime"));
            QCOMPARE(visibleWheels(), 2);
            tap(shown("button_back"));
            QCOMPARE(visibleWheels(), 0);
        }
    }

private:
    void openSetTime() { tap(visibleChild(menu.get(), "option_setTime")); }
    void openNightMode() { tap(visibleChild(menu.get(), "option_frame_nightPattern")); }

    /// The visible widget @p name of the newest page, or null.
    QWidget *shown(const QString &name) const
    {
        QWidget *found = nullptr;
        for (QWidget *widget : menu->findChildren<QWidget *>(name))
            found = widget->isVisible() ? widget : found;
        return found;
    }

    QmlApplicationViewer *wheel(const QString &name) const
    {
        return qobject_cast<QmlApplicationViewer *>(shown(name));
    }

    QTime wheelTime(bool use24Hour) const
    {
        const int half = use24Hour ? 0 : wheel("widget_amp")->currentIndex();
        return {wheel("widget_hour")->currentIndex() + half * 12,
                wheel("widget_min")->currentIndex()};
    }

    /// Whether the page shows the present minute, or the one that has just passed.
    bool clockShows(const QString &format) const
    {
        const auto *button = qobject_cast<QPushButton *>(shown("button_currentDateTime"));
        const QDateTime now = QDateTime::currentDateTime();
        return button != nullptr && (button->text() == now.toString(format) ||
                                     button->text() == now.addSecs(-5).toString(format));
    }

    /// How many pixels of @p area are as bright as the current row of a wheel.
    int accentPixels(const QRect &area) const
    {
        const QImage picture = menu->grab(area).toImage();
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                count += picture.pixelColor(x, y) == QColor("#00e5ff") ? 1 : 0;
        }
        return count;
    }

    QRect onScreen(const QString &name) const
    {
        const QWidget *widget = shown(name);
        return {widget->mapTo(menu.get(), QPoint()), widget->size()};
    }

    int visibleWheels() const
    {
        const auto wheels = menu->findChildren<QmlApplicationViewer *>();
        return int(std::count_if(wheels.cbegin(), wheels.cend(),
                                 [](const QWidget *host) { return host->isVisible(); }));
    }

    std::unique_ptr<MessageLog> log;
    std::unique_ptr<OptionPage> menu;
};

ZELL_TEST_MAIN(TestTimePages)
#include "test_time_pages.moc"
