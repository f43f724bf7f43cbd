#include "history/Blackboard.h"
#include "history/DemonstrationSeries.h"
#include "history/DotStamps.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"
#include "testkit/Touch.h"

#include <QPaintEvent>
#include <QPainter>
#include <QRandomGenerator>
#include <QScreen>
#include <QSignalSpy>
#include <functional>
#include <limits>

using namespace ChartScale;

namespace {
constexpr int hour = 3600;
constexpr int day = 24 * hour;
constexpr int last = std::numeric_limits<int>::max();
constexpr float infinity = std::numeric_limits<float>::infinity();
// 21 July 2016, 0 o'clock local time.
constexpr int today = 1469030400;
constexpr int morning = today + hour;
constexpr int laterMorning = today + hour * 3 / 2;
constexpr int yesterday = today - 12 * hour;
using Readings = QMap<int, float>;
const Readings week{{yesterday, 90}, {morning, 20}, {laterMorning, 30.5F}};

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
            moveTo(this, {x, 100});
        // What is asked for while painting is painted with the next round.
        for (int round = 0; round < 3; ++round)
            QCoreApplication::processEvents();
        return repainted;
    }

    QImage onScreen() { return screen()->grabWindow(winId()).toImage(); }
    bool showsItsLastDot() { return onScreen().pixelColor(81, 142).blue() < 100; }

    qint64 now = today + 16 * hour;
    QSignalSpy reached{this, &Blackboard::readingReached};
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

struct Rounding
{
    const char *name;
    ValueRange given;
    ValueRange rounded;
};

struct Touch
{
    const char *name;
    int mode;
    int day;
    int fingerX;
    int quantity;
    float x;
    int time;
    QString unit;
};

struct Change
{
    const char *name;
    std::function<void(Board &)> change;
};

struct Dots
{
    const char *name;
    int size;
    QBrush brush;
    double pixelRatio = 1;
};

struct Series
{
    const char *name;
    Readings readings;
    bool isTouchable;
};

// The search as it is defined: a walk over all dots of the days.
int nearestByWalking(const QList<int> &times, const QList<int> &xs, LocalTime::Range days, float x)
{
    int passed = -1;
    for (int i = 0; times.size() > 1 && i < times.size(); ++i) {
        if (!days.contains(times[i]))
            continue;
        if (passed < 0 && x < float(xs[i]))
            return i;
        if (passed >= 0 && x <= float(xs[i]))
            return x - float(xs[passed]) < float(xs[i]) - x ? passed : i;
        passed = i;
    }
    return passed;
}
} // namespace

class TestChart : public QObject
{
    Q_OBJECT

private slots:
    void rangesAreWellRounded_data()
    {
        addRows<Rounding>({{"one value", {10, 10}, {0, 15}},
                           {"a fraction", {12.3F, 12.3F}, {5, 20}},
                           {"fits", {50, 110}, {50, 110}},
                           {"below zero", {-7, -3}, {-15, 0}},
                           {"five missing", {0, 16}, {-5, 25}},
                           {"beyond int", {-3e38F, 3e38F}, {-2147483520, 2147483520}}});
    }

    void rangesAreWellRounded()
    {
        QFETCH(Rounding, row);
        findPerfectValueRange(row.given.min, row.given.max, 3);
        QCOMPARE(row.given, row.rounded);
    }

    void todayHasARangeOfItsOwn()
    {
        QCOMPARE(LocalTime::startOfDay(today - 1), qint64(today - day));
        QCOMPARE(LocalTime::secondOfDay(-32400), qint64(82800));
        const Readings readings{
            {today - 1, 90}, {today, 20}, {today + day, 40}, {today + day + 1, 7}};
        const auto [ofToday, ofAll] = valueRangesOf(readings, today, 3);
        QCOMPARE(ofToday, (ValueRange{15, 45}));
        QCOMPARE(ofAll, (ValueRange{0, 90}));
        QCOMPARE(valueRangesOf(readings, today + 9 * day, 3).today, ofAll);
        QCOMPARE(valueRangesOf({}, today, 3).today, (ValueRange{0, 15}));
    }

    void nearestTimes()
    {
        // Times that a float rounds: to 128, 896 and 1792.
        const QList<int> times{today + 150, today + 900, today + 1850};
        QCOMPARE(nearestTime(times, float(today)), today + 150);
        QCOMPARE(nearestTime(times, float(today + 384)), today + 150);
        QCOMPARE(nearestTime(times, float(today + 512)), today + 900);
        QCOMPARE(nearestTime(times, float(today + 1850)), -1);
        QCOMPARE(nearestTime({today}, 0), -1);
    }

    void nearestDotEqualsTheWalk()
    {
        QRandomGenerator random(3);
        for (int round = 0; round < 300; ++round) {
            const auto scale = timesOf(random.bounded(120, 1500), 35, 80, 24);
            QList<int> times(random.bounded(60));
            for (int &time : times)
                time = int(today + day - random.bounded(8 * day));
            std::sort(times.begin(), times.end());
            QList<int> xs;
            for (const int time : times)
                xs.append(truncated(scale.toX(time)));
            const qint64 from = today - day * random.bounded(9);
            const LocalTime::Range days{from, from + (random.bounded(4) == 0 ? 7 * day : day)};
            for (float x = -3; x < 1500; x += 0.5F * float(1 + random.bounded(60)))
                QCOMPARE(nearestDot(times, xs, days, x).candidate,
                         nearestByWalking(times, xs, days, x));
        }
    }

    void demonstrationSeriesOfFullHours()
    {
        int draws = 0;
        const auto thinned = demonstrationSeries(today + 16 * hour, 2, [&] { return draws++; });
        QCOMPARE(thinned.size(), 94 * 4);
        QCOMPARE(thinned.firstKey(), today - 6 * day + 13 * hour);
        QCOMPARE(thinned.lastKey(), today + 8 * hour + 2700);
        QVERIFY(demonstrationSeries(qint64(1) << 40, 2, [] { return 1; }).isEmpty());
    }

    void touchFindsAReading_data()
    {
        addRows<Touch>({{"left of the first", 0, 0, 3, 1, 65, morning, "μg/m³"},
                        {"nearer to the first", 0, 0, 72, 1, 65, morning, "μg/m³"},
                        {"a tie", 0, 0, 73, 3, 81, laterMorning, "%"},
                        {"24 hours ignore the day", 0, 1, 850, 9, 81, laterMorning, "%"},
                        {"yesterday", 1, 1, 3, 2, 404, yesterday, "℃"}});
    }

    void touchFindsAReading()
    {
        QFETCH(Touch, row);
        Board board(week, row.quantity);
        board.mode = row.mode;
        board.day = row.day;
        const MessageLog log;
        pressAt(&board, {row.fingerX, 200});
        board.painted();
        QCOMPARE(board.reached.count(), 1);
        const float value = week[row.time];
        const QColor color = PmColorGenerator().colorOfPm(value);
        QCOMPARE(board.touched.value(0), QVariantList({row.x, row.time, value, color, row.unit}));
        QCOMPARE(board.reached[0], QVariantList({row.x, value, color, row.unit}));
        QVERIFY(log.contains(QString("Nearest X: %1 Value  %2").arg(row.time).arg(value)));
        QCOMPARE(board.released.count(), 0);
        releaseAt(&board, {row.fingerX, 200});
        QCOMPARE(log.lines().first() + log.lines().last(), "Blackboard PressBlackboard Over");
        QCOMPARE(board.released.count(), 1);
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
        // A jump repaints both places, a step one rectangle.
        QCOMPARE(board.painted({500}).rectCount(), 2);
        board.painted({158});
        // Several events between two paintings: the last one counts, the others leave nothing.
        QCOMPARE(board.painted({70, 81, 62}).rectCount(), 1);
        QCOMPARE(board.touched.last()[0].toFloat(), 65.0F);
        releaseAt(&board, {62, 100});
        QVERIFY(board.painted().boundingRect().width() <= 24);
        QCOMPARE(board.onScreen(), before);
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
        QVERIFY(!board.released.isEmpty());
        QVERIFY(!board.showsItsLastDot());
    }

    void daysAndPlaces()
    {
        using Days = std::pair<int, int>;
        Readings readings = week;
        readings[today] = std::numeric_limits<float>::quiet_NaN();
        const MessageLog log;
        Board board(readings);
        QCOMPARE(board.searchNearestScreenX(3, true), morning);
        QCOMPARE(log.lines(),
                 QStringList({"Blackboard: left out 1 readings that are no numbers", "1 3 1 1"}));
        QCOMPARE(board.searchNearestTime(0), yesterday);
        QVERIFY(!Blackboard::is0oclock(today));
        QVERIFY(Blackboard::is0oclock(today + 1));
        QCOMPARE(board.getDayTimeRange(4), Days(today, today + day));
        // The steps of the axis do not change the range.
        board.valueDivisions = 4;
        board.setValueMap(readings, 2);
        board.painted();
        QCOMPARE(board.valueYToScreenY(25), 244.0F);
        QCOMPARE(board.screenYToValueY(60 + 336 - 244), 25.0F);
        QCOMPARE(board.timeXToScreenX(12 * hour, true), 404.5F);
        QCOMPARE(board.timeXToScreenX(4 * hour, false), 404.5F);
        board.mode = 1;
        QCOMPARE(board.getDayTimeRange(6), Days(today - 6 * day, today - 5 * day));
        QCOMPARE(board.getDayTimeRange(7), Days(today - 6 * day, today + day));
    }

    void whatIsKeptFollowsEveryChange_data()
    {
        addRows<Change>({{"other readings",
                          [](Board &board) {
                              board.setValueMap({{morning, 30}}, 2);
                          }},
                         {"another range",
                          [](Board &board) {
                              board.setValueMap({{morning, 99}}, 2);
                          }},
                         {"seven days", [](Board &board) { board.mode = 1; }},
                         {"another day", [](Board &board) { board.mode = board.day = 1; }},
                         {"a margin", [](Board &board) { board.timeScale = {.left = 80}; }},
                         {"the steps", [](Board &board) { board.valueDivisions = 5; }},
                         {"a ground", [](Board &board) { board.setGround(Qt::black); }}});
    }

    void whatIsKeptFollowsEveryChange()
    {
        QFETCH(Change, row);
        Board board;
        const QImage before = board.onScreen();
        row.change(board);
        board.update();
        board.painted();
        const QImage kept = board.onScreen();
        QVERIFY(kept != before);
        // A chart that was hidden has kept nothing.
        board.hide();
        board.show();
        board.painted();
        QCOMPARE(board.onScreen(), kept);
    }

    void dotsAreThoseOfThePainter_data()
    {
        QLinearGradient rainbow(0, 0, 0, 70);
        rainbow.setColorAt(0, QColor(255, 90, 0, 204));
        rainbow.setColorAt(1, QColor(0, 200, 255, 204));
        addRows<Dots>({{"in colours of their rows", 16, rainbow},
                       {"small and faint", 4, QColor(255, 255, 255, 76)},
                       {"on a fine screen", 16, rainbow, 2}});
    }

    void dotsAreThoseOfThePainter()
    {
        QFETCH(Dots, row);
        // Over one another, over the edges and beside the picture; the second time stamps are kept.
        QRandomGenerator random(7);
        QList<QPointF> centers;
        for (int dot = 0; dot < 300; ++dot)
            centers.append({float(random.bounded(500)) * 0.3137F - 30, random.bounded(130) - 30.0});
        QImage drawn(QSize(97, 71) * row.pixelRatio, QImage::Format_ARGB32_Premultiplied);
        drawn.setDevicePixelRatio(row.pixelRatio);
        drawn.fill(QColor(10, 20, 30, 40));
        QImage expected = drawn;
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(row.brush, row.size, Qt::SolidLine, Qt::RoundCap));
        DotStamps stamps(row.size);
        for (int time = 0; time < 2; ++time) {
            for (const QPointF &center : std::as_const(centers))
                painter.drawPoint(center);
            stamps.draw(&drawn, centers, row.brush);
            QCOMPARE(drawn, expected);
        }
    }

    void oddReadingsAtOddSizes_data()
    {
        addRows<Series>({{"none", {}, false},
                         {"a single one", {{today, 5}}, false},
                         {"of another day", {{yesterday, 5}, {yesterday + 1, 5}}, false},
                         {"at the ends of time", {{-last - 1, 5}, {0, 6}, {last, 7}}, false},
                         {"far below zero", {{today, -5}, {today + 1, -5000}}, true},
                         {"beyond 16 millions", {{today, 2e9F}, {today + 1, 2e9F}}, true},
                         {"without end", {{today, infinity}, {today + 9, -infinity}}, true}});
    }

    void oddReadingsAtOddSizes()
    {
        QFETCH(Series, row);
        Board board(row.readings);
        for (const QSize size : {QSize(1, 1), QSize(114, 123), QSize(116, 124), QSize(4000, 3)}) {
            board.mode = 1 - board.mode;
            board.resize(size);
            pressAt(&board, {0, false});
            board.painted();
        }
        board.touched.clear();
        board.released.clear();
        board.resize(854, 400);
        pressAt(&board, {400, false});
        board.painted();
        QCOMPARE(!board.touched.isEmpty(), row.isTouchable);
        QCOMPARE(board.released.isEmpty(), row.isTouchable);
    }
};

ZELL_TEST_MAIN(TestChart)
#include "test_chart.moc"
