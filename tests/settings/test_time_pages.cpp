#include "settings/DateTimePage.h"
#include "settings/OptionPage.h"
#include "settings/QmlApplicationViewer.h"
#include "settings/SetTimePage.h"
#include "settings/timePage.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/Touch.h"

#include <QDateTime>
#include <QPointer>
#include <QQmlEngine>
#include <memory>

class TestTimePages : public QObject
{
    Q_OBJECT

public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private slots:
    void init() { menu = std::make_unique<OptionPage>(); }
    void cleanup()
    {
        menu.reset();
        QCOMPARE(DateTimePage::instance, nullptr);
    }

    // The first test: no spinner has been loaded before.
    void spinnersAreReadyBeforeTheyAreOpened()
    {
        QVERIFY(!qApp->findChild<QQmlEngine *>());
        open("option_setTime");
        QTRY_VERIFY(qApp->findChild<QQmlEngine *>());
    }

    void clockSwitchChoosesTextAndWheels()
    {
        const MessageLog log;
        open("option_setTime");
        for (const bool use24Hour : {true, false}) {
            const QString format = use24Hour ? "yyyy-MM-dd HH:mm" : "yyyy-MM-dd hh:mm AP";
            QTRY_VERIFY(clockShows(format));
            QCOMPARE(shown("button_on")->property("checked").toBool(), use24Hour);
            open("button_dateTime");
            QCOMPARE(shown("widget_hour")->x(), use24Hour ? 452 : 362);
            QCOMPARE(shown("widget_amp") == nullptr, use24Hour);
            const QTime start(row("widget_hour") + (use24Hour ? 0 : row("widget_amp") * 12),
                              row("widget_min"));
            const int late = start.secsTo(QTime::currentTime());
            QVERIFY(late >= 0 && late < 65);
            QCOMPARE(row("widget_date"), 0);
            QTest::keyClick(shown("widget_date"), Qt::Key_Up);
            QCOMPARE(row("widget_date"), 364);
            tap(shown("button_back"));
            QTRY_VERIFY(clockShows(format));
            tap(shown("checkBox_24Hours"));
        }
        QCOMPARE(log.lines(), QStringList());
    }

    void dateTimePageMovesToItsOpenerAndRests()
    {
        QPointer<DateTimePage> page;
        qApp->installEventFilter(this);
        for (int visit = 1; visit <= 3; ++visit) {
            open("option_setTime");
            QTRY_VERIFY(isAtRest());
            open("button_dateTime");
            if (visit == 1)
                page = DateTimePage::instance;
            QVERIFY(page && page == DateTimePage::instance);
            const auto openers = menu->findChildren<SetTimePage *>();
            QCOMPARE(openers.size(), visit);
            QVERIFY(page->isVisible() && openers.last()->isAncestorOf(page));
            QVERIFY(shown("widget_date") && shown("widget_hour") && shown("widget_min"));
            QTRY_VERIFY(isAtRest());
            tap(shown("button_back"));
            QVERIFY(!page->isVisible());
            tap(shown("button_back"));
            QVERIFY(menu->is_allowed_slide());
        }
        qApp->removeEventFilter(this);
    }

    void nightRowsFollowTheSwitch()
    {
        open("option_frame_nightPattern");
        for (const bool on : {true, false, true}) {
            QCOMPARE(shown("frame_startTime") != nullptr, on);
            QCOMPARE(shown("frame_finishTime") != nullptr, on);
            QCOMPARE(shown("button_close")->property("checked").toBool(), !on);
            tap(shown("checkBox_nightMode"));
        }
        tap(shown("button_setNightMode"));
        QVERIFY(!shown("frame_startTime"));
    }

    void bothTimesOpenAFreshPage()
    {
        const QString tab = "border-image: url(:/resource/images/optionPage/nightPattern/%1.png);\n"
                            "font: 24px;\ncolor:%2;";
        const QString looks[] = {tab.arg("unbutton", "#FFFFFF"), tab.arg("button", "#212121")};
        open("option_frame_nightPattern");
        for (const int visit : {1, 2}) {
            open(visit == 1 ? "button_startTime" : "button_finishTime");
            QCOMPARE(menu->findChildren<timePage *>().size(), visit);
            QVERIFY(row("widget_hour") == 22 && row("widget_min") == 30 && !shown("widget_amp"));
            QTest::keyClick(shown("widget_hour"), Qt::Key_Down);
            QCOMPARE(row("widget_hour"), 23);
            for (const bool finish : {false, true, false}) {
                QCOMPARE(shown("pushButton_start")->styleSheet(), looks[finish ? 0 : 1]);
                QCOMPARE(shown("pushButton_finish")->styleSheet(), looks[finish ? 1 : 0]);
                tap(shown(finish ? "pushButton_start" : "pushButton_finish"));
            }
            tap(shown("button_back"));
            QVERIFY(shown("frame_startTime") && !shown("widget_hour"));
        }
    }

private:
    void open(const QString &button)
    {
        menu->show();
        tap(shown(button));
    }

    /// The visible widget @p name of the newest page, or null.
    QWidget *shown(const QString &name) const
    {
        QWidget *found = nullptr;
        for (QWidget *widget : menu->findChildren<QWidget *>(name))
            found = widget->isVisible() ? widget : found;
        return found;
    }

    int row(const QString &wheel) const
    {
        return qobject_cast<QmlApplicationViewer *>(shown(wheel))->currentIndex();
    }

    /// Whether the page shows the present minute, or the one that has just passed.
    bool clockShows(const QString &format) const
    {
        const QString text = shown("button_currentDateTime")->property("text").toString();
        const QDateTime now = QDateTime::currentDateTime();
        return text == now.toString(format) || text == now.addSecs(-5).toString(format);
    }

    /// Whether a turn of the event loop paints nothing.
    bool isAtRest()
    {
        paints = 0;
        QCoreApplication::processEvents();
        return paints == 0;
    }

    int paints = 0;
    std::unique_ptr<OptionPage> menu;
};

ZELL_TEST_MAIN(TestTimePages)
#include "test_time_pages.moc"
