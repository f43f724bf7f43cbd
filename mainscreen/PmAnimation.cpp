#include "mainscreen/PmAnimation.h"

#include "mainscreen/MovingParts.h"

#include <QLabel>
#include <QParallelAnimationGroup>
#include <QPropertyAnimation>
#include <QSequentialAnimationGroup>
#include <chrono>

namespace {
using namespace std::chrono_literals;

constexpr QSize widgetSize{442, 150};
constexpr QRect sensorRect{100, 0, 242, 141};
constexpr QSize barSize{19, 112};
constexpr int sweepStart = 18;
constexpr int sweepEnd = 200;
constexpr int chamberTop = 16;
constexpr int chamberHeight = 108;
constexpr int entryHeight = 90;
constexpr int granuleReach = 100;
constexpr int granulesPerGroup = 4;
constexpr auto sweepTime = 5000ms;
constexpr auto smallGranuleTime = 15000ms;
constexpr auto largeGranuleTime = 13000ms;

QPixmap picture(const QString &name)
{
    return QPixmap(QStringLiteral(":/resource/images/mainPage/other/%1.png").arg(name));
}
} // namespace

PmAnimation::PmAnimation(QWidget *parent)
    : QFrame(parent)
    , movingParts(new MovingParts(this))
    , whole(new QParallelAnimationGroup(this))
{
    setObjectName(QStringLiteral("PmAnimation"));
    resize(widgetSize);
}

void PmAnimation::init()
{
    sensor = new QFrame(this);
    sensor->move(sensorRect.topLeft());
    sensor->setFixedSize(sensorRect.size());
    sensor->setStyleSheet(
        QStringLiteral("border-image: url(:/resource/images/mainPage/other/Zell.png);"));
    bar = new QLabel(this);
    bar->setObjectName(QStringLiteral("label_scanning"));
    bar->setPixmap(picture(QStringLiteral("scanning")));
    bar->setGeometry(getScanningStartRectF());
    // Kept[same-dust]: the same paths at every start.
    random.seed(0);
    scanCounter = 0;
    bar->show();
    sensor->show();

    whole->addAnimation(initGranuleGroup());
    whole->addAnimation(newSweeps());
    whole->addAnimation(initGranuleGroup());
    connect(whole, &QAbstractAnimation::finished, this, &PmAnimation::restart);
    movingParts->watch(findChildren<QLabel *>());
}

void PmAnimation::startAnimation()
{
    whole->start();
}

void PmAnimation::setInSight(bool inSight)
{
    movingParts->rest();
    if (whole->state() == (inSight ? QAbstractAnimation::Paused : QAbstractAnimation::Running))
        whole->setPaused(!inSight);
}

void PmAnimation::stopAnimation()
{
    whole->stop();
    movingParts->rest();
    hide();
}

void PmAnimation::changedScanning()
{
    // Kept[scan-counter]: it goes on where the last run was stopped.
    const bool forward = scanCounter % 2 != 0;
    bar->setPixmap(picture(forward ? QStringLiteral("scanning") : QStringLiteral("scanning2")));
    movingParts->refresh();
    ++scanCounter;
}

// Kept[animation-hooks]: what moves is painted without it, and the animation has no end to tell of.
void PmAnimation::repaintUI(const QVariant &) {}

void PmAnimation::restart()
{
    whole->start();
}

QRect PmAnimation::getScanningStartRectF() const
{
    return {sensor->pos() + QPoint(sweepStart, chamberTop), barSize};
}

QRect PmAnimation::getScanningEndRectF() const
{
    return {sensor->pos() + QPoint(sweepEnd, chamberTop), barSize};
}

int PmAnimation::getRandOfY()
{
    return random.bounded(entryHeight) + sensor->y() + chamberTop;
}

QPoint PmAnimation::getRandOfRectF()
{
    const int x = random.bounded(sensorRect.width()) + sensor->x();
    const int y = random.bounded(chamberHeight) + sensor->y() + chamberTop;
    return {x, y};
}

QPoint PmAnimation::getGranuleStartPoint()
{
    return {sensor->x() - granuleReach, getRandOfY()};
}

QPoint PmAnimation::getGranuleEndPoint()
{
    return {sensor->x() + sensorRect.width() + granuleReach, getRandOfY()};
}

QPropertyAnimation *PmAnimation::getAnimation()
{
    constexpr int kinds = 4;
    constexpr int largeKind = 3;
    const int kind = random.bounded(kinds);
    const int size = kind == 1 ? 4 : kind == 2 ? 5 : 6;

    auto *granule = new QLabel(this);
    granule->setObjectName(QStringLiteral("label_granule"));
    granule->setPixmap(picture(QStringLiteral("Granule%1").arg(size)));
    granule->resize(size, size);

    auto *animation = new QPropertyAnimation(granule, "pos");
    animation->setDuration(int((kind == largeKind ? largeGranuleTime : smallGranuleTime).count()));
    animation->setKeyValueAt(0, getGranuleStartPoint());
    animation->setKeyValueAt(0.4, getRandOfRectF());
    animation->setKeyValueAt(0.7, getRandOfRectF());
    animation->setKeyValueAt(1, getGranuleEndPoint());
    granule->move(animation->startValue().toPoint());
    connect(animation, &QVariantAnimation::valueChanged, this, &PmAnimation::repaintUI);
    return animation;
}

QAnimationGroup *PmAnimation::newSweeps()
{
    auto *sweeps = new QSequentialAnimationGroup;
    for (const bool back : {false, true, false}) {
        auto *sweep = new QPropertyAnimation(bar, "geometry");
        sweep->setDuration(int(sweepTime.count()));
        sweep->setStartValue(back ? getScanningEndRectF() : getScanningStartRectF());
        sweep->setEndValue(back ? getScanningStartRectF() : getScanningEndRectF());
        connect(sweep, &QVariantAnimation::valueChanged, this, &PmAnimation::repaintUI);
        sweeps->addAnimation(sweep);
    }
    for (const int turned : {0, 1})
        connect(sweeps->animationAt(turned), &QAbstractAnimation::finished, this,
                &PmAnimation::changedScanning);
    return sweeps;
}

QAnimationGroup *PmAnimation::initGranuleGroup()
{
    auto *granules = new QParallelAnimationGroup;
    for (int i = 0; i < granulesPerGroup; ++i)
        granules->addAnimation(getAnimation());
    return granules;
}
