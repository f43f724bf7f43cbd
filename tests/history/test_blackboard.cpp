#include "history/Blackboard.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/Touch.h"

#include <QPaintEvent>
#include <QScreen>
#include <QSignalSpy>
#include <limits>

namespace {
using Readings = QMap<int, float>;

constexpr int hour = 3600;
constexpr int day = 24 * hour;
// 21 July 2016, 0 o'clock local time.
constexpr int today = 1469030400;
const Readings week{{today - 12 * hour, 90}, {today + hour, 20}, {today + hour * 3 / 2, 30.5F}};

/// A chart on the screen that notes what it repaints.
class Board : public Blackboard
{
public:
    Board(const qint64 *now, const Readings &readings, int quantity = 2)
        : Blackboard(nullptr, [now] { return *now; })
    {
        resize(854, 400);
        setValueMap(readings, quantity);
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

    QSignalSpy touched{this, &Blackboard::signalTouch};
    QSignalSpy released{this, &Blackboard::signalMouseRelease};

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
        QTest::addColumn<QList<int>>("modeDayFingerType");
        QTest::addColumn<QVariantList>("reading");
        const auto row = [](const char *name, const QList<int> &touch,
                            const QVariantList &reading) {
            QTest::newRow(name) << touch << reading;
        };
        row("left of the first", {0, 0, 3, 1}, {65.0F, today + hour, 20.0F, "μg/m³"});
        row("nearer to the first", {0, 0, 72, 2}, {65.0F, today + hour, 20.0F, "℃"});
        row("a tie", {0, 0, 73, 2}, {81.0F, today + hour * 3 / 2, 30.5F, "℃"});
        row("right of the last", {0, 0, 850, 3}, {81.0F, today + hour * 3 / 2, 30.5F, "%"});
        row("24 hours ignore the day", {0, 1, 850, 9}, {81.0F, today + hour * 3 / 2, 30.5F, "%"});
        row("yesterday", {1, 1, 3, 2}, {404.0F, today - 12 * hour, 90.0F, "℃"});
        row("a day without readings", {1, 3, 400, 2}, {});
        row("at the edge", {0, 0, 0, 2}, {});
    }

    void touchFindsAReading()
    {
        QFETCH(const QList<int>, modeDayFingerType);
        QFETCH(const QVariantList, reading);
        const QPoint finger(modeDayFingerType[2], 200);
        const bool reported = !reading.isEmpty() || finger.x() == 0;
        Board board(&now, week, modeDayFingerType[3]);
        board.mode = modeDayFingerType[0];
        board.day = modeDayFingerType[1];
        board.update();
        board.painted();
        const MessageLog log;
        pressAt(&board, finger);
        board.painted();
        QVERIFY(log.contains("Blackboard Press"));
        QCOMPARE(board.touched.count(), reading.isEmpty() ? 0 : 1);
        QCOMPARE(board.released.count(), reported ? 0 : 1);
        if (!reading.isEmpty()) {
            QVariantList sent = board.touched.first();
            const QColor color = sent.takeAt(3).value<QColor>();
            QCOMPARE(sent, reading);
            QCOMPARE(color, PmColorGenerator().colorOfPm(reading[2].toFloat()));
            QVERIFY(log.contains(QString("Nearest X: %1 Value").arg(reading[1].toInt())));
        }
        releaseAt(&board, finger);
        QVERIFY(log.contains("Blackboard Over"));
        QCOMPARE(board.released.count(), reported ? 1 : 2);
    }

    void aFingerRepaintsItsMarkerOnly()
    {
        Readings readings = week;
        readings[today + 4 * hour] = readings[today + 15 * hour] = 25;
        Board board(&now, readings);
        const QImage before = board.onScreen();
        pressAt(&board, {60, 200});
        QVERIFY(board.painted().boundingRect().width() <= 24);
        QVERIFY(board.onScreen() != before);
        board.update();
        board.painted();
        QCOMPARE(board.touched.count(), 2);
        // A jump repaints both places, a step one rectangle.
        QTest::mouseMove(&board, {500, 100});
        const QRegion jump = board.painted();
        QCOMPARE(jump.rectCount(), 2);
        QVERIFY(jump.begin()[0].width() + jump.begin()[1].width() <= 48);
        QTest::mouseMove(&board, {158, 100});
        board.painted();
        // Several events between two paintings: the last one counts, the others leave nothing.
        for (const int x : {70, 81, 62})
            QTest::mouseMove(&board, {x, 100});
        QCOMPARE(board.painted().rectCount(), 1);
        QCOMPARE(board.touched.last()[0].toFloat(), 65.0F);

        releaseAt(&board, {62, 100});
        QVERIFY(board.painted().boundingRect().width() <= 24);
        QVERIFY(board.onScreen() == before);
    }

    void midnightMovesTheDays()
    {
        Board board(&now, week);
        pressAt(&board, {60, 200});
        board.painted();
        QVERIFY(board.onScreen().pixelColor(81, 142).blue() < 100);
        now = today + day;
        board.update(0, 0, 9, 9);
        QCOMPARE(board.painted(), QRegion(board.rect()));
        QVERIFY(board.released.count() > 0);
        QCOMPARE(board.getDayTimeRange(0).first, qint64(today + day));
        QVERIFY(board.onScreen().pixelColor(81, 142).blue() > 200);
    }

    void daysAndPlaces()
    {
        using Days = std::pair<qint64, qint64>;
        Board board(&now, week);
        QCOMPARE(board.getDayTimeRange(4), Days(today, today + day));
        board.mode = 1;
        QCOMPARE(board.getDayTimeRange(6), Days(today - 6 * day, today - 5 * day));
        QCOMPARE(board.getDayTimeRange(7), Days(today - 518400, today + day));
        board.mode = 0;
        QVERIFY(!Blackboard::is0oclock(today));
        QVERIFY(Blackboard::is0oclock(today + 1));
        QCOMPARE(board.timeXToScreenX(12 * hour, true), 404.5F);
        QCOMPARE(board.timeXToScreenX(4 * hour, false), 404.5F);
        QCOMPARE(board.valueYToScreenY(25), 244.0F);
        QCOMPARE(board.screenYToValueY(60 + 336 - 244), 25.0F);
        QCOMPARE(board.searchNearestTime(0), today - 12 * hour);
        board.resize(600, 300);
        board.painted();
        QCOMPARE(board.timeXToScreenX(12 * hour, true), 277.5F);
        QCOMPARE(board.valueYToScreenY(20), 236.0F);
    }

    void oddReadingsAndSizes_data()
    {
        QTest::addColumn<Readings>("readings");
        constexpr int last = std::numeric_limits<int>::max();
        constexpr float infinity = std::numeric_limits<float>::infinity();
        QTest::newRow("none") << Readings();
        QTest::newRow("one") << Readings{{today, 5}};
        QTest::newRow("repeated") << Readings{{today, 5}, {today + 1, 5}};
        QTest::newRow("negative") << Readings{{today, -5}, {today + 1, -5000}};
        QTest::newRow("huge") << Readings{{today, 3e38F}, {today + 1, -3e38F}};
        QTest::newRow("huge, repeated") << Readings{{today, 2e9F}, {today + 1, 2e9F}};
        QTest::newRow("infinite") << Readings{{today, infinity}, {today + 9, -infinity}};
        QTest::newRow("extreme times") << Readings{{-last - 1, 5}, {0, 6}, {last, 7}};
    }

    void oddReadingsAndSizes()
    {
        QFETCH(const Readings, readings);
        Board board(&now, readings);
        for (const QSize size : {QSize(1, 1), QSize(114, 123), QSize(116, 124), QSize(117, 126),
                                 QSize(4000, 3), QSize(854, 400)}) {
            board.mode = 1 - board.mode;
            board.resize(size);
            pressAt(&board, {qMin(60, size.width() - 1), 0});
            board.painted();
            releaseAt(&board, {0, 0});
        }
        QCOMPARE(board.touched.isEmpty(), readings.size() < 2 || readings.firstKey() < 0);
        if (readings.isEmpty())
            QCOMPARE(board.valueYToScreenY(15), 60.0F);
    }

    void readingsThatAreNoNumbersAreLeftOut()
    {
        Readings readings = week;
        readings[today] = std::numeric_limits<float>::quiet_NaN();
        const MessageLog log;
        Board board(&now, readings);
        QVERIFY(log.contains("left out 1 readings"));
        QCOMPARE(board.searchNearestScreenX(3, true), today + hour);
        QVERIFY(log.contains("1 3 1 1"));
    }

    void theAxesCanBeRevealed()
    {
        Board board(&now, week);
        const QImage whole = board.onScreen();
        const MessageLog log;
        board.reanimate1();
        board.animating = true;
        board.reanimate1();
        board.timeLineFrameChanged(0);
        QCOMPARE(log.lines(), (QStringList{"jjjj", "time line"}));
        QCOMPARE(board.painted(), QRegion(board.rect()));
        QVERIFY(board.onScreen().copy(0, 345, 854, 30) != whole.copy(0, 345, 854, 30));
        QVERIFY(board.onScreen().pixelColor(81, 142).blue() < 100);
    }

private:
    qint64 now = 0;
};

ZELL_TEST_MAIN(TestBlackboard)
#include "test_blackboard.moc"
