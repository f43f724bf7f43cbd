#include "history/Blackboard.h"

#include "pages/Quantity.h"

#include <QDebug>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QTimeLine>
#include <algorithm>
#include <chrono>
#include <climits>
#include <cmath>

namespace {
using namespace std::chrono_literals;

constexpr auto revealTime = 1000ms;
constexpr int daysOfWeek = 7;
// Kept[three-divisions]: of the ranges, whatever number of steps the axis is drawn in.
constexpr int rangeDivisions = 3;
// Where one rectangle costs more than the two markers in it, in pixels.
constexpr int widestRepaint = 200;
} // namespace

Blackboard::Blackboard(QWidget *parent, LocalTime::Clock currentTime)
    : QWidget(parent)
    , clock(std::move(currentTime))
    , timeLine(new QTimeLine(int(revealTime.count()), this))
{
    timeLine->setFrameRange(0, int(revealTime.count()));
    connect(timeLine, &QTimeLine::frameChanged, this, &Blackboard::timeLineFrameChanged);
}

// Kept[one-colour-scale]: for temperature and humidity, too.
PmColorGenerator &Blackboard::gc()
{
    static PmColorGenerator generator;
    return generator;
}

void Blackboard::setValueMap(const QMap<int, float> &map, int newType)
{
    type = newType;
    valueMap = map;
    const auto isNoNumber = [](float value) { return std::isnan(value); };
    // Asked first: to remove nothing would copy the whole series.
    if (std::ranges::any_of(map, isNoNumber)) {
        const auto removed =
            valueMap.removeIf([&](auto reading) { return isNoNumber(reading.value()); });
        qDebug() << "Blackboard: left out" << removed << "readings that are no numbers";
    }
    ranges = valueRangesOf(valueMap, LocalTime::startOfDay(clock()), rangeDivisions);
    ++series;
    valueScale = {};
    times.clear();
    screenXs.clear();
    update();
}

// Kept[else-humidity]: any number that is no quantity's counts as humidity.
const QuantityLook &Blackboard::look() const
{
    const QuantityLook *known = lookOf(type);
    return known ? *known : lookOf(Quantity::Humidity);
}

void Blackboard::setGround(const QColor &color)
{
    ground = color;
    update();
}

std::pair<int, int> Blackboard::getDayTimeRange(CurrentDay wanted) const
{
    // Readings have times that an int holds; beyond them there are none to show.
    const auto held = [](qint64 time) { return int(std::clamp<qint64>(time, INT_MIN, INT_MAX)); };
    const qint64 daysBack = mode == twentyFourHours || wanted == wholeWeek ? 0 : wanted;
    const qint64 days = mode != twentyFourHours && wanted == wholeWeek ? daysOfWeek : 1;
    const qint64 end = LocalTime::startOfDay(clock()) + (1 - daysBack) * LocalTime::secondsPerDay;
    return {held(end - days * LocalTime::secondsPerDay), held(end)};
}

// Kept[midnight-reversed]: true at any time but that of its name.
bool Blackboard::is0oclock(int t)
{
    return LocalTime::secondOfDay(t) != 0;
}

// Kept[chart-hooks]: with reanimate1() and a time line that nothing starts.
void Blackboard::isCurrentDay(int) {}

float Blackboard::timeXToScreenX(float time, bool isLocal) const
{
    const qint64 whole = std::isfinite(time) ? qint64(std::clamp(time, -1e15F, 1e15F)) : 0;
    return timeScale.toX(isLocal ? whole - LocalTime::secondsAheadOfUtc : whole);
}

int Blackboard::searchNearestTime(float time)
{
    resetTimeLine();
    return nearestTime(times, time);
}

int Blackboard::searchNearestScreenX(float x, bool returnTime)
{
    resetTimeLine();
    const NearestDot dot = nearestTo(x);
    qDebug().noquote() << QString::number(dot.reason) << x << dot.first << dot.candidate;
    if (dot.candidate < 0)
        return -1;
    return returnTime ? times[dot.candidate] : screenXs[dot.candidate];
}

NearestDot Blackboard::nearestTo(float x) const
{
    const auto [start, end] = getDayTimeRange(day);
    return nearestDot(times, screenXs, {start, end}, x);
}

void Blackboard::resetTimeLine()
{
    if (timeScale.pxPerHour == 0.0F || timeScale.pxPerSecond == 0.0F) {
        screenXs.clear();
        timeScale = ChartScale::timesOf(width(), timeScale.left, rightMargin, hours);
    }
    if (timeScale.pxPerHour <= 0.0F || (!times.isEmpty() && !screenXs.isEmpty()))
        return;
    times = valueMap.keys();
    screenXs.clear();
    screenXs.reserve(times.size());
    for (const int time : std::as_const(times))
        screenXs.append(ChartScale::truncated(timeScale.toX(time)));
}

void Blackboard::resetGeometry()
{
    if (valueScale.bottom < 0 || valueScale.top < 0)
        valueScale = ChartScale::valuesOf(height(), topMargin, bottomMargin, shownRange());
    resetTimeLine();
}

ValueRange Blackboard::shownRange() const
{
    return mode == twentyFourHours ? ranges.today : ranges.all;
}

ChartFrame Blackboard::currentFrame() const
{
    const auto [start, end] = getDayTimeRange(day);
    return {.size = size(),
            .pixelRatio = devicePixelRatioF(),
            .ground = ground,
            .values = valueScale,
            .times = timeScale,
            .rightMargin = rightMargin,
            .range = shownRange(),
            .hours = hours,
            .valueDivisions = valueDivisions,
            .days = {start, end},
            .otherDays = mode == sevenDays,
            .revealed = animating ? timeLine->currentValue() : 1,
            .series = series};
}

// One for each presentation, as the tabs lead to and fro.
const QImage &Blackboard::axesOf(const ChartFrame &frame)
{
    auto &[drawn, picture] = axes[frame.otherDays ? 1 : 0];
    if (!picture.isNull() && frame.hasAxesOf(drawn))
        return picture;
    drawn = frame;
    const bool isOpaque = frame.ground.alpha() == 255;
    picture = QImage(frame.size * frame.pixelRatio,
                     isOpaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(frame.pixelRatio);
    picture.fill(frame.ground);
    QPainter painter(&picture);
    ChartPainter(&painter, frame).drawAxes();
    return picture;
}

bool Blackboard::refreshStillPart(const ChartFrame &frame)
{
    if (!stillPart.isNull() && frame == stillFrame)
        return false;
    stillPart = axesOf(frame);
    stillFrame = frame;
    dots.draw(&stillPart, frame, valueMap, &gc());
    return true;
}

ChartMarker Blackboard::markerAt(int x, float value) const
{
    return {x, ChartScale::truncated(valueYToScreenY(value)), gc().colorOfPm(value)};
}

void Blackboard::paintEvent(QPaintEvent *event)
{
    resetGeometry();
    const qint64 today = LocalTime::startOfDay(clock());
    if (std::exchange(paintedToday, today) != today)
        emit daysMoved();
    const ChartFrame frame = currentFrame();
    // A new day can begin while a finger moves: then the rest of the chart has to follow.
    if (refreshStillPart(frame) && event->region() != QRegion(rect()))
        update();

    paintedMarker = {};
    QPainter painter(this);
    painter.drawImage(0, 0, stillPart);
    if (touchX <= 0.0F)
        return;
    const int x = searchNearestScreenX(touchX, false);
    const int time = searchNearestScreenX(touchX, true);
    if (time < 0) {
        painter.end();
        emit signalMouseRelease();
        return;
    }
    const float value = valueMap.value(time);
    const ChartMarker marker = markerAt(x, value);
    qDebug() << "Nearest X:" << time << "Value " << value;
    ChartPainter(&painter, frame).drawMarker(marker);
    paintedMarker = ChartPainter::markerRect(marker, height());
    // Kept[touch-from-painting]: again with every repaint.
    // Whoever listens may change what lies around the chart: not under a painter at work.
    painter.end();
    emit signalTouch(float(x), time, value, marker.color, look().unit.toString());
}

void Blackboard::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // Not earlier: the style sheet, applied before a widget is shown, takes it away.
    setAttribute(Qt::WA_OpaquePaintEvent, ground.alpha() == 255);
}

// A page that is seldom seen needs no memory.
void Blackboard::hideEvent(QHideEvent *event)
{
    axes = {};
    stillPart = {};
    QWidget::hideEvent(event);
}

void Blackboard::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    timeScale = {.left = timeScale.left};
    valueScale = {};
}

void Blackboard::followFinger(const QMouseEvent *event)
{
    const bool released = event->type() == QEvent::MouseButtonRelease;
    touchX = released ? -1.0F : float(event->position().toPoint().x());
    if (touchX <= 0.0F) {
        update(paintedMarker);
        return;
    }
    resetGeometry();
    const int index = nearestTo(touchX).candidate;
    if (index < 0) {
        // Nothing to mark, but the painting is what reports it.
        update();
        return;
    }
    const float value = valueMap.value(times[index]);
    const ChartMarker marker = markerAt(screenXs[index], value);
    emit readingReached(float(marker.x), value, marker.color, look().unit.toString());
    const QRect place = ChartPainter::markerRect(marker, height());
    const QRect both = paintedMarker | place;
    // A finger on its way needs a rectangle little wider than its marker; one that jumps, two.
    if (both.width() <= widestRepaint) {
        update(both);
        return;
    }
    update(paintedMarker);
    update(place);
}

void Blackboard::mousePressEvent(QMouseEvent *event)
{
    qDebug() << "Blackboard Press";
    followFinger(event);
}

void Blackboard::mouseMoveEvent(QMouseEvent *event)
{
    qDebug() << "Blackboard Move";
    followFinger(event);
}

void Blackboard::mouseReleaseEvent(QMouseEvent *event)
{
    qDebug() << "Blackboard Over";
    followFinger(event);
    emit signalMouseRelease();
}

void Blackboard::followClock()
{
    if (LocalTime::startOfDay(clock()) != paintedToday)
        update();
}

void Blackboard::timeLineFrameChanged(int)
{
    qDebug() << "time line";
    update();
}

void Blackboard::reanimate1()
{
    if (animating)
        qDebug() << "jjjj";
}
