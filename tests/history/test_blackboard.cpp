#include "history/Blackboard.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/Touch.h"

#include <QPaintEvent>
#include <QScreen>
#include <QSignalSpy>
#include <QWindow>
#include <limits>

namespace {
using Readings = QMap<int, float>;

constexpr int hour = 3600;
constexpr int day = 24 * hour;
// 21 July 2016, 0 o'clock local time.
constexpr int today = 1469030400;
constexpr float infinity = std::numeric_limits<float>::infinity();

/// A chart on the screen that notes what it repaints.
class Board : public Blackboard
{
public:
    explicit Board(const qint64 *now)
        : Blackboard(nullptr, [now] { return *now; })
    {
        resize(854, 400);
        show();
        painted();
    }

    QRegion painted()
    {
        repainted = {};
        // What is asked for while painting is painted with the next round.
        for (int round = 0; round < 3; ++round)
            QCoreApplication::processEvents();
        return repainted;
    }

    QImage onScreen() { return screen()->grabWindow(winId()).toImage(); }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        repainted += event->region();
        Blackboard::paintEvent(event);
    }

private:
    QRegion repainted;
};
} // namespace

class TestBlackboard : public QObject
{
    Q_OBJECT

private slots:
    void init() { now = today + 16 * hour; }

    void touchFindsAReading_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("day");
        QTest::addColumn<int>("finger");
        QTest::addColumn<QVariantList>("reading");
        const QVariantList first{65, today + hour, 20.0F};
        const QVariantList second{96, today + 2 * hour, 30.5F};
        QTest::newRow("left of the first") << 0 << 0 << 3 << first;
        QTest::newRow("nearer to the first") << 0 << 0 << 80 << first;
        QTest::newRow("right of the last") << 0 << 0 << 850 << second;
        QTest::newRow("24 hours ignore the day") << 0 << 1 << 850 << second;
        QTest::newRow("yesterday") << 1 << 1 << 3 << QVariantList{404, today - 12 * hour, 90.0F};
        QTest::newRow("a day without readings") << 1 << 3 << 400 << QVariantList();
        QTest::newRow("at the edge") << 0 << 0 << 0 << QVariantList();
    }

    void touchFindsAReading()
    {
        QFETCH(int, finger);
        QFETCH(QVariantList, reading);
        Board board(&now);
        board.setValueMap(week(), 1);
        QFETCH(const int, mode);
        QFETCH(const int, day);
        board.mode = mode;
        board.day = day;
        QSignalSpy touched(&board, &Blackboard::signalTouch);
        QSignalSpy released(&board, &Blackboard::signalMouseRelease);
        const MessageLog log;
        pressAt(&board, {finger, 200});
        board.painted();
        QCOMPARE(touched.count(), reading.isEmpty() ? 0 : 1);
        QCOMPARE(released.count(), reading.isEmpty() && finger > 0 ? 1 : 0);
        QVERIFY(log.contains("Blackboard Press"));
        if (!reading.isEmpty()) {
            const QVariantList sent = touched.first();
            QCOMPARE(sent.mid(0, 3), (QVariantList{reading[0].toFloat(), reading[1], reading[2]}));
            QCOMPARE(sent[3].value<QColor>(), PmColorGenerator().colorOfPm(reading[2].toFloat()));
            QVERIFY(log.contains(QString("Nearest X: %1 Value").arg(reading[1].toInt())));
        }
        releaseAt(&board, {finger, 200});
        QVERIFY(log.contains("Blackboard Over"));
        QCOMPARE(released.count(), reading.isEmpty() && finger > 0 ? 2 : 1);
    }

    void unitsFollowTheQuantity()
    {
        for (const auto &[type, unit] :
             QMap<int, QString>{{1, "μg/m³"}, {2, "℃"}, {3, "%"}, {9, "%"}}.asKeyValueRange()) {
            Board board(&now);
            board.setValueMap(week(), type);
            QSignalSpy touched(&board, &Blackboard::signalTouch);
            pressAt(&board, {80, 200});
            board.painted();
            QCOMPARE(touched.last()[4].toString(), unit);
        }
    }

    void aSingleReadingCannotBeTouched()
    {
        Board board(&now);
        board.setValueMap({{today + hour, 20}}, 2);
        QSignalSpy touched(&board, &Blackboard::signalTouch);
        pressAt(&board, {65, 200});
        board.painted();
        QCOMPARE(touched.count(), 0);
        QCOMPARE(board.searchNearestScreenX(65, true), -1);
        QCOMPARE(board.searchNearestTime(today), -1);
    }

    void aFingerRepaintsItsMarkerOnly()
    {
        Board board(&now);
        board.setValueMap(week(), 2);
        board.painted();
        const QImage before = board.onScreen();
        QSignalSpy touched(&board, &Blackboard::signalTouch);

        pressAt(&board, {60, 200});
        QVERIFY(board.painted().boundingRect().width() <= 24);
        QVERIFY(board.onScreen() != before);
        moveTo(&board, {70, 100});
        board.painted();
        for (const int x : {300, 500, 62})
            QTest::mouseMove(&board, {x, 100});
        const QRegion repainted = board.painted();
        QVERIFY(repainted.boundingRect().right() < 96 + 12);
        QCOMPARE(touched.last()[0].toFloat(), 65.0F);

        const qsizetype emitted = touched.count();
        board.update();
        board.painted();
        QCOMPARE(touched.count(), emitted + 1);

        releaseAt(&board, {62, 100});
        QVERIFY(board.painted().boundingRect().width() <= 24);
        QVERIFY(board.onScreen() == before);
        QCOMPARE(touched.count(), emitted + 1);
    }

    void midnightMovesTheDays()
    {
        Board board(&now);
        board.setValueMap(week(), 2);
        pressAt(&board, {60, 200});
        board.painted();
        QCOMPARE(board.getDayTimeRange(0).first, qint64(today));
        now = today + day;
        QSignalSpy released(&board, &Blackboard::signalMouseRelease);
        board.update(0, 0, 9, 9);
        QCOMPARE(board.painted(), QRegion(board.rect()));
        QVERIFY(released.count() > 0);
        QCOMPARE(board.getDayTimeRange(0).first, qint64(today + day));
        QCOMPARE(board.onScreen().pixelColor(65, 200), board.onScreen().pixelColor(500, 200));
    }

    void daysOfThePresentations_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("day");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::newRow("24 hours") << 0 << 4 << today << today + day;
        QTest::newRow("today") << 1 << 0 << today << today + day;
        QTest::newRow("six days ago") << 1 << 6 << today - 6 * day << today - 5 * day;
        QTest::newRow("the week") << 1 << 7 << today - 518400 << today + day;
    }

    void daysOfThePresentations()
    {
        QFETCH(int, mode);
        QFETCH(int, day);
        QFETCH(int, from);
        QFETCH(int, to);
        Board board(&now);
        board.mode = mode;
        QCOMPARE(board.getDayTimeRange(day), (std::pair<qint64, qint64>(from, to)));
    }

    void placesOnTheScreen()
    {
        Board board(&now);
        board.setValueMap(week(), 2);
        board.grab();
        QCOMPARE(board.timeXToScreenX(12 * hour, true), 404.5F);
        QCOMPARE(board.timeXToScreenX(4 * hour, false), 404.5F);
        QCOMPARE(board.valueYToScreenY(25), 244.0F);
        QCOMPARE(board.screenYToValueY(60 + 336 - 244), 25.0F);
        QVERIFY(!Blackboard::is0oclock(today));
        QVERIFY(Blackboard::is0oclock(today + 1));
        board.resize(600, 300);
        board.grab();
        QCOMPARE(board.timeXToScreenX(12 * hour, true), 277.5F);
        QCOMPARE(board.valueYToScreenY(20), 236.0F);
    }

    void badReadingsAndSizes_data()
    {
        QTest::addColumn<Readings>("readings");
        constexpr int last = std::numeric_limits<int>::max();
        QTest::newRow("none") << Readings();
        QTest::newRow("one") << Readings{{today, 5}};
        QTest::newRow("repeated") << Readings{{today, 5}, {today + 1, 5}, {today + 2, 5}};
        QTest::newRow("negative") << Readings{{today, -5}, {today + 1, -5000}};
        QTest::newRow("huge") << Readings{{today, 3e38F}, {today + 1, -3e38F}, {today + 2, 2e9F}};
        QTest::newRow("huge, repeated") << Readings{{today, 2e9F}, {today + 1, 2e9F}};
        QTest::newRow("infinite") << Readings{{today, infinity}, {today + 9, -infinity}};
        QTest::newRow("extreme times") << Readings{{-last - 1, 5}, {0, 6}, {last, 7}};
    }

    void badReadingsAndSizes()
    {
        QFETCH(const Readings, readings);
        Board board(&now);
        board.setValueMap(readings, 3);
        for (const int mode : {0, 1}) {
            board.mode = mode;
            board.day = mode == 1 ? 7 : 0;
            for (const QSize size : {QSize(1, 1), QSize(114, 123), QSize(116, 124), QSize(117, 126),
                                     QSize(854, 400), QSize(4000, 3)}) {
                board.resize(size);
                pressAt(&board, {qMin(60, size.width() - 1), 0});
                board.painted();
                QVERIFY(!board.grab().isNull());
                releaseAt(&board, {0, 0});
            }
        }
    }

    void anEmptyMapShowsTheGrid()
    {
        Board board(&now);
        QCOMPARE(board.valueYToScreenY(0), 336.0F);
        QCOMPARE(board.valueYToScreenY(15), 60.0F);
    }

    void readingsThatAreNoNumbersAreLeftOut()
    {
        Board board(&now);
        const MessageLog log;
        board.setValueMap({{today, std::numeric_limits<float>::quiet_NaN()},
                           {today + hour, 20},
                           {today + 2 * hour, 30}},
                          2);
        QVERIFY(log.contains("left out 1 readings"));
        QCOMPARE(board.searchNearestScreenX(3, true), today + hour);
    }

    void theAxesCanBeRevealed()
    {
        Board board(&now);
        board.setValueMap(week(), 2);
        board.painted();
        const QImage whole = board.onScreen();
        const MessageLog log;
        board.reanimate1();
        QVERIFY(log.lines().isEmpty());
        board.animating = true;
        board.reanimate1();
        QCOMPARE(log.lines(), QStringList{"jjjj"});
        board.timeLineFrameChanged(0);
        QVERIFY(log.contains("time line"));
        QCOMPARE(board.painted(), QRegion(board.rect()));
        QVERIFY(board.onScreen().copy(0, 345, 854, 30) != whole.copy(0, 345, 854, 30));
        QVERIFY(board.onScreen().pixelColor(96, 142).green() > 100);
    }

private:
    static Readings week()
    {
        return {{today - 12 * hour, 90}, {today + hour, 20}, {today + 2 * hour, 30.5F}};
    }

    qint64 now = 0;
};

ZELL_TEST_MAIN(TestBlackboard)
#include "test_blackboard.moc"
