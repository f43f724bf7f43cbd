#include "mainscreen/PmAnimation.h"
#include "tests/support/Environment.h"

#include <QLabel>
#include <QParallelAnimationGroup>

namespace {
QImage scanningPicture(const QString &name)
{
    return QPixmap(QStringLiteral(":/resource/images/mainPage/other/%1.png").arg(name)).toImage();
}
} // namespace

class TestPmAnimation : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        animation = std::make_unique<PmAnimation>();
        animation->init();
        animation->show();
        bar = animation->findChild<QLabel *>("label_scanning");
        for (auto *group : animation->findChildren<QParallelAnimationGroup *>()) {
            if (group->animationCount() == 3)
                whole = group;
        }
        QVERIFY(whole);
        animation->startAnimation();
    }

    void barSweepsThreeTimes_data()
    {
        QTest::addColumn<int>("time");
        QTest::addColumn<QPoint>("place");
        QTest::addColumn<QString>("picture");
        QTest::newRow("start") << 0 << QPoint(118, 16) << "scanning";
        QTest::newRow("half way out") << 2500 << QPoint(209, 16) << "scanning";
        QTest::newRow("turned") << 5001 << QPoint(300, 16) << "scanning2";
        QTest::newRow("half way back") << 7500 << QPoint(209, 16) << "scanning2";
        QTest::newRow("out again") << 12500 << QPoint(209, 16) << "scanning";
        QTest::newRow("end") << 14999 << QPoint(300, 16) << "scanning";
    }

    void barSweepsThreeTimes()
    {
        QFETCH(int, time);
        QFETCH(QPoint, place);
        QFETCH(QString, picture);
        whole->setCurrentTime(time);
        QVERIFY2((bar->pos() - place).manhattanLength() <= 1,
                 qPrintable(QDebug::toString(bar->pos())));
        QCOMPARE(bar->size(), QSize(19, 112));
        QCOMPARE(bar->pixmap(Qt::ReturnByValue).toImage(), scanningPicture(picture));
    }

    void granulesDriftThrough()
    {
        const QList<QLabel *> granules = animation->findChildren<QLabel *>("label_granule");
        QCOMPARE(granules.size(), 8);
        for (const int time : {0, 6000, 14999}) {
            whole->setCurrentTime(time);
            for (const QLabel *granule : granules) {
                QCOMPARE(granule->size(), granule->pixmap(Qt::ReturnByValue).size());
                QVERIFY(granule->y() >= 16 && granule->y() < 124);
                if (time == 0)
                    QCOMPARE(granule->x(), 0);
                else if (time == 6000)
                    QVERIFY(granule->x() >= 100);
                else
                    QVERIFY(granule->x() >= 440);
            }
        }
    }

    void pathsAreTheSameAfterEveryStart()
    {
        PmAnimation again;
        again.init();
        const auto first = animation->findChildren<QLabel *>("label_granule");
        const auto second = again.findChildren<QLabel *>("label_granule");
        QList<QPoint> places;
        QList<QPoint> placesAgain;
        whole->setCurrentTime(0);
        for (int i = 0; i < 8; ++i) {
            places << first.at(i)->pos();
            placesAgain << second.at(i)->pos();
        }
        QCOMPARE(placesAgain, places);
        QVERIFY(std::ranges::count(places, places.first()) < 8);
    }

    void loopsUntilStopped()
    {
        whole->setCurrentTime(15000);
        QCOMPARE(whole->state(), QAbstractAnimation::Running);
        QVERIFY(whole->currentTime() < 1000);
        whole->setCurrentTime(2500);
        animation->stopAnimation();
        QCOMPARE(whole->state(), QAbstractAnimation::Stopped);
        QVERIFY(animation->isHidden());
        QVERIFY(bar->x() > 200);
    }

private:
    std::unique_ptr<PmAnimation> animation;
    QParallelAnimationGroup *whole = nullptr;
    QLabel *bar = nullptr;
};

ZELL_TEST_MAIN(TestPmAnimation)
#include "test_pm_animation.moc"
