#pragma once

#include "history/ChartDots.h"
#include "history/ChartScale.h"
#include "history/NearestDot.h"
#include "history/ValueRange.h"

#include <QMap>
#include <QWidget>
#include <array>
#include <utility>

class QTimeLine;
struct QuantityLook;

/// A day of the chart: 0 for today, 1 for yesterday ... 6; 7 for the whole week.
using CurrentDay = int;

/// Draws the readings of one quantity as dots over the hours of a day, which a finger explores.
///
/// Times are Unix seconds, days those of UTC + 8 hours. The still part is painted once per change
/// and kept; a moving finger repaints the pixels of its marker only. GUI thread.
class Blackboard : public QWidget
{
    Q_OBJECT

public:
    static constexpr int twentyFourHours = 0;
    static constexpr int sevenDays = 1;
    static constexpr CurrentDay wholeWeek = 7;

    explicit Blackboard(QWidget *parent = nullptr,
                        LocalTime::Clock currentTime = LocalTime::systemClock);

    /// Shows @p map, Unix time to value, as quantity @p newType: 1 PM2.5, 2 temperature, any other
    /// humidity. Values that are no numbers are left out with a debug line.
    void setValueMap(const QMap<int, float> &map, int newType);

    /// Fills the ground with the opaque @p color. Without one what lies below the chart shows.
    void setGround(const QColor &color);

    /// Gives the look of the quantity that is shown.
    const QuantityLook &look() const;

    /// Gives the start and, exclusive, the end of @p day in Unix seconds; always today in the
    /// 24-hour presentation.
    std::pair<int, int> getDayTimeRange(CurrentDay day) const;
    /// Tells whether it is not 0 o'clock local time, despite its name.
    static bool is0oclock(int t);
    void isCurrentDay(int day);

    /// Gives the x of the time of day of @p time, which is local or, as a Unix time, in UTC.
    float timeXToScreenX(float time, bool isLocal) const;
    float valueYToScreenY(float value) const { return valueScale.toY(value); }
    /// Gives the value at @p y mirrored about the middle of the plot area.
    float screenYToValueY(float y) const { return valueScale.toValue(y); }

    /// Finds the reading nearest to the Unix time @p time, or -1.
    int searchNearestTime(float time);
    /// Finds the shown reading nearest to the finger at @p x, or -1: its time where @p returnTime
    /// is set, else its x.
    int searchNearestScreenX(float x, bool returnTime);

    /// Handles a press or a move like the mouse, without a debug line.
    void touchEvent(QMouseEvent *event) { followFinger(event); }

    // What the page changes, followed by update().
    int mode = twentyFourHours;
    CurrentDay day = 0;
    ChartScale::Times timeScale{.left = 35}; ///< worked out anew where it has no pixels per hour
    ChartScale::Values valueScale;           ///< worked out anew where an end is negative

    // The rest of the presentation. A change takes effect like one of the page.
    float topMargin = 60;
    float bottomMargin = 64;
    float rightMargin = 80;
    int hours = 24;
    int valueDivisions = 3;
    bool animating = false; ///< whether the time line reveals the axes

signals:
    /// Tells that the days of the chart have moved: midnight has passed, or the clock was set.
    void daysMoved();
    /// Tells of the reading that the next painting marks, so that a read-out is painted with it.
    void readingReached(float x, float value, const QColor &valueColor, const QString &unit);
    /// Tells of the reading under the finger. Emitted from painting, thus again with every repaint.
    void signalTouch(float x, int time, float value, QColor valueColor, QString unit);
    /// Tells that the finger has left, or that there is no reading to touch.
    void signalMouseRelease();

public slots:
    /// Repaints the chart where its days have moved since the last painting.
    void followClock();
    /// Repaints the chart, with its axes revealed as far as the time line is.
    void timeLineFrameChanged(int frame);
    void reanimate1();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    static PmColorGenerator &gc();
    void resetGeometry();
    void resetTimeLine();
    ValueRange shownRange() const;
    ChartFrame currentFrame() const;
    NearestDot nearestTo(float x) const;
    ChartMarker markerAt(int x, float value) const;
    const QImage &axesOf(const ChartFrame &frame);
    bool refreshStillPart(const ChartFrame &frame);
    void followFinger(const QMouseEvent *event);

    LocalTime::Clock clock;
    QTimeLine *timeLine;
    int type = 0;
    QMap<int, float> valueMap;
    QList<int> times;
    QList<int> screenXs;
    ValueRanges ranges;
    float touchX = -1;
    QColor ground = Qt::transparent;
    std::array<std::pair<ChartFrame, QImage>, 2> axes;
    QImage stillPart;
    ChartDots dots;
    ChartFrame stillFrame;
    quint64 series = 0;
    qint64 paintedToday = 0;
    QRect paintedMarker;
};
