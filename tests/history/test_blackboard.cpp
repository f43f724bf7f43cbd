#include "history/Blackboard.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/Touch.h"

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
    explicit Board(const Readings &readings = week, int quantity = 2)
        : Blackboard(nullptr, [this] { return now; })
    {
        resize(854, 400);
        setValueMap(readings, quantity);
        show();
        painted();
    }

    /// What the finger repaints on its way over @p places.
    QRegion painted(std::initializer_list<int> places = {})
    {
        repainted = {};
        for (const int x : places)
            QTest::mouseMove(this, {x, 100});
        // What is asked for while painting is painted with the next round.
        for (int round = 0; round < 3; ++round)
            QCoreApplication::processEvents();
        return repainted;
    }

    QImage onScreen() { return screen()->grabWindow(winId()).toImage(); }
    bool showsItsLastDot() { return onScreen().pixelColor(81, 142).blue() < 100; }

    qint64 now = today + 16 * hour;
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
    void touchFindsAReading_data()
    {
        using Touch = QList<int>;
        QTest::addColumn<Touch>("modeDayFingerType");
        QTest::addColumn<QVariantList>("reading");
        const auto reading = [](float x, int time, const QString &unit) {
            const float value = week[time];
            return QVariantList{x, time, value, PmColorGenerator().colorOfPm(value), unit};
        };
        const QVariantList first = reading(65, today + hour, "μg/m³");
        const QVariantList last = reading(81, today + hour * 3 / 2, "%");
        QTest::newRow("left of the first") << Touch{0, 0, 3, 1} << first;
        QTest::newRow("nearer to the first") << Touch{0, 0, 72, 1} << first;
        QTest::newRow("a tie") << Touch{0, 0, 73, 3} << last;
        QTest::newRow("right of the last, 24 hours ignore the day") << Touch{0, 1, 850, 9} << last;
        QTest::newRow("yesterday") << Touch{1, 1, 3, 2} << reading(404, today - 12 * hour, "℃");
        QTest::newRow("a day without readings") << Touch{1, 3, 400, 2} << QVariantList();
        QTest::newRow("at the edge") << Touch{0, 0, 0, 2} << QVariantList();
    }

    void touchFindsAReading()
    {
        QFETCH(const QList<int>, modeDayFingerType);
        QFETCH(const QVariantList, reading);
        const QPoint finger(modeDayFingerType[2], 200);
        const int notFound = reading.isEmpty() && finger.x() > 0 ? 1 : 0;
        Board board(week, modeDayFingerType[3]);
        board.mode = modeDayFingerType[0];
        board.day = modeDayFingerType[1];
        board.update();
        board.painted();
        const MessageLog log;
        pressAt(&board, finger);
        board.painted();
        QCOMPARE(board.touched.value(0), reading);
        QCOMPARE(board.touched.count(), reading.isEmpty() ? 0 : 1);
        QCOMPARE(board.released.count(), notFound);
        const auto line = QString("Nearest X: %1 Value  %2");
        for (const auto &[time, value] : week.asKeyValueRange())
            QCOMPARE(log.lines().contains(line.arg(time).arg(value)), reading.value(1) == time);
        releaseAt(&board, finger);
        QCOMPARE(log.lines().first() + log.lines().last(), "Blackboard PressBlackboard Over");
        QCOMPARE(board.released.count(), notFound + 1);
    }

    void aFingerRepaintsItsMarkerOnly()
    {
        Readings readings = week;
        readings[today + 4 * hour] = readings[today + 15 * hour] = 25;
        Board board(readings);
        const QImage before = board.onScreen();
        pressAt(&board, {60, 200});
        QVERIFY(board.painted().boundingRect().width() <= 24);
        QVERIFY(board.onScreen() != before);
        board.update();
        board.painted();
        QCOMPARE(board.touched.count(), 2);
        // A jump repaints both places, a step one rectangle.
        const QRegion jump = board.painted({500});
        QCOMPARE(jump.rectCount(), 2);
        QVERIFY(jump.begin()[0].width() + jump.begin()[1].width() <= 48);
        board.painted({158});
        // Several events between two paintings: the last one counts, the others leave nothing.
        QCOMPARE(board.painted({70, 81, 62}).rectCount(), 1);
        QCOMPARE(board.touched.last()[0].toFloat(), 65.0F);
        releaseAt(&board, {62, 100});
        QVERIFY(board.painted().boundingRect().width() <= 24);
        QVERIFY(board.onScreen() == before);
    }

    void midnightMovesTheDays()
    {
        Board board;
        pressAt(&board, {60, 200});
        board.painted();
        QVERIFY(board.showsItsLastDot());
        board.now = today + day;
        board.update(0, 0, 9, 9);
        QCOMPARE(board.painted(), QRegion(board.rect()));
        QVERIFY(board.released.count() > 0);
        QVERIFY(!board.showsItsLastDot());
    }

    void daysAndPlaces()
    {
        using Days = std::pair<int, int>;
        Readings readings = week;
        readings[today] = std::numeric_limits<float>::quiet_NaN();
        const MessageLog log;
        Board board(readings);
        QCOMPARE(board.searchNearestScreenX(3, true), today + hour);
        QCOMPARE(log.lines(),
                 QStringList({"Blackboard: left out 1 readings that are no numbers", "1 3 1 1"}));
        QCOMPARE(board.getDayTimeRange(4), Days(today, today + day));
        board.mode = 1;
        QCOMPARE(board.getDayTimeRange(6), Days(today - 6 * day, today - 5 * day));
        QCOMPARE(board.getDayTimeRange(7), Days(today - 518400, today + day));
        board.mode = 0;
        QVERIFY(!Blackboard::is0oclock(today) && Blackboard::is0oclock(today + 1));
        QCOMPARE(board.timeXToScreenX(12 * hour, true), 404.5F);
        QCOMPARE(board.timeXToScreenX(4 * hour, false), 404.5F);
        QCOMPARE(board.valueYToScreenY(25), 244.0F);
        // The steps of the axis do not change the range.
        board.valueDivisions = 4;
        board.setValueMap(readings, 2);
        board.painted();
        QCOMPARE(board.valueYToScreenY(25), 244.0F);
        QCOMPARE(board.screenYToValueY(60 + 336 - 244), 25.0F);
        QCOMPARE(board.searchNearestTime(0), today - 12 * hour);
        board.resize(600, 300);
        board.painted();
        QCOMPARE(board.timeXToScreenX(12 * hour, true), 277.5F);
        QCOMPARE(board.valueYToScreenY(20), 236.0F);
    }

    void oddReadingsAndSizes()
    {
        constexpr int last = std::numeric_limits<int>::max();
        constexpr float infinity = std::numeric_limits<float>::infinity();
        using R = Readings;
        for (const Readings &readings :
             {R(), R{{today, 5}}, R{{today, 5}, {today + 1, 5}}, R{{today, -5}, {today + 1, -5000}},
              R{{today, 2e9F}, {today + 1, 2e9F}}, R{{today, infinity}, {today + 9, -infinity}},
              R{{-last - 1, 5}, {0, 6}, {last, 7}}}) {
            Board board(readings);
            for (const QSize size : {QSize(1, 1), QSize(114, 123), QSize(116, 124), QSize(117, 126),
                                     QSize(4000, 3), QSize(854, 400)}) {
                board.mode = 1 - board.mode;
                board.resize(size);
                pressAt(&board, {qMin(60, size.width() - 1), 0});
                board.painted();
                releaseAt(&board, {0, 0});
            }
            QCOMPARE(board.touched.isEmpty(), readings.size() < 2 || readings.firstKey() < 0);
            QVERIFY(!readings.isEmpty() || board.valueYToScreenY(15) == 60.0F);
        }
    }

    void theAxesCanBeRevealed()
    {
        Board board;
        const QImage whole = board.onScreen();
        const MessageLog log;
        board.reanimate1();
        board.animating = true;
        board.reanimate1();
        board.timeLineFrameChanged(0);
        QCOMPARE(log.lines(), QStringList({"jjjj", "time line"}));
        QCOMPARE(board.painted(), QRegion(board.rect()));
        QVERIFY(board.onScreen().copy(0, 345, 854, 30) != whole.copy(0, 345, 854, 30));
        QVERIFY(board.showsItsLastDot());
    }
};

ZELL_TEST_MAIN(TestBlackboard)
#include "test_blackboard.moc"
