#include "settings/DateTimePage.h"
#include "settings/OptionPage.h"
#include "settings/SetTimePage.h"
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

    void clockSwitchChoosesTextAndWheels()
    {
        openSetTime();
        for (const bool use24Hour : {true, false}) {
            const QString format = use24Hour ? "yyyy-MM-dd HH:mm" : "yyyy-MM-dd hh:mm AP";
            QTRY_VERIFY(clockShows(format));
            QCOMPARE(shown("button_on")->styleSheet().contains("#00e5ff"), use24Hour);
            tap(shown("button_dateTime"));
            QCOMPARE(onScreen("widget_hour"), QRect(use24Hour ? 452 : 362, 98, 150, 320));
            QCOMPARE(shown("widget_amp") == nullptr, use24Hour);
            QVERIFY(use24Hour || onScreen("widget_amp") == QRect(662, 173, 150, 160));
            const int late = wheelTime(use24Hour).secsTo(QTime::currentTime());
            QVERIFY(late >= 0 && late < 65);

            QCOMPARE(wheel("widget_date")->currentIndex(), 0);
            QTest::keyClick(wheel("widget_date"), Qt::Key_Up);
            QCOMPARE(wheel("widget_date")->currentIndex(), 364);
            const QString yesterday = QDate::currentDate().addDays(-1).toString("MM月dd日 ");
            QVERIFY(currentText(wheel("widget_date")).startsWith(yesterday));
            tap(shown("button_back"));
            QTRY_VERIFY(clockShows(format));
            tap(shown("checkBox_24Hours"));
        }
    }

    void dateTimePageMovesToItsOpener()
    {
        QPointer<DateTimePage> page;
        for (int visit = 0; visit < 3; ++visit) {
            openSetTime();
            tap(shown("button_dateTime"));
            if (visit == 0)
                page = DateTimePage::instance;
            QCOMPARE(page, DateTimePage::instance);
            QVERIFY(page->isVisible());
            QVERIFY(menu->findChildren<SetTimePage *>().last()->isAncestorOf(page));
            for (const char *name : {"widget_date", "widget_hour", "widget_min"})
                QTRY_VERIFY2(isPainted(name), name);
            tap(shown("button_back"));
            QVERIFY(!page->isVisible());
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
        const QString selected = "border-image: url(:/resource/images/optionPage/nightPattern/"
                                 "button.png);\nfont: 24px;\ncolor:#212121;";
        const QString other = "border-image: url(:/resource/images/optionPage/nightPattern/"
                              "unbutton.png);\nfont: 24px;\ncolor:#FFFFFF;";
        openNightMode();
        int visits = 0;
        for (const char *button : {"button_startTime", "button_finishTime"}) {
            tap(shown(button));
            QCOMPARE(menu->findChildren<timePage *>().size(), ++visits);
            QCOMPARE(wheelTime(true), QTime(22, 30));
            QCOMPARE(visibleWheels(), 2);
            QTest::keyClick(wheel("widget_hour"), Qt::Key_Down);
            QCOMPARE(wheel("widget_hour")->currentIndex(), 23);
            for (const bool finish : {false, true, false}) {
                QCOMPARE(shown("pushButton_start")->styleSheet(), finish ? other : selected);
                QCOMPARE(shown("pushButton_finish")->styleSheet(), finish ? selected : other);
                tap(shown(finish ? "pushButton_start" : "pushButton_finish"));
            }
            tap(shown("button_back"));
            QVERIFY(shown("frame_startTime"));
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

    /// Whether the bright middle row of the wheel @p name is in the picture of the screen.
    bool isPainted(const QString &name) const
    {
        const QImage picture = menu->grab(onScreen(name)).toImage();
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, 180) == QColor("#00e5ff"))
                return true;
        }
        return false;
    }

    QRect onScreen(const QString &name) const
    {
        const QWidget *widget = shown(name);
        return {widget->mapTo(menu.get(), QPoint()), widget->size()};
    }

    int visibleWheels() const
    {
        int count = 0;
        for (const auto *host : menu->findChildren<QmlApplicationViewer *>())
            count += host->isVisible() ? 1 : 0;
        return count;
    }

    std::unique_ptr<MessageLog> log;
    std::unique_ptr<OptionPage> menu;
};

ZELL_TEST_MAIN(TestTimePages)
#include "test_time_pages.moc"
