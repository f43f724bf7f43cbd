#include "mainscreen/PmAnimation.h"
#include "testkit/Environment.h"

#include <QLabel>
#include <QParallelAnimationGroup>

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
        whole =
            animation->findChild<QParallelAnimationGroup *>(QString(), Qt::FindDirectChildrenOnly);
        animation->startAnimation();
    }

    void barSweepsThreeTimesAndAgainUntilStopped()
    {
        const std::tuple<int, int, const char *> steps[] = {
            {0, 118, "scanning"},     {2500, 209, "scanning"},  {5001, 300, "scanning2"},
            {7500, 209, "scanning2"}, {12500, 209, "scanning"}, {14999, 300, "scanning"}};
        for (const auto &[time, x, name] : steps) {
            whole->setCurrentTime(time);
            QVERIFY2(std::abs(bar->x() - x) <= 1 && bar->y() == 16, name);
            QCOMPARE(bar->size(), QSize(19, 112));
            const QPixmap picture(QString(":/resource/images/mainPage/other/%1.png").arg(name));
            QCOMPARE(bar->pixmap(Qt::ReturnByValue).toImage(), picture.toImage());
        }
        whole->setCurrentTime(15000);
        QCOMPARE(whole->state(), QAbstractAnimation::Running);
        QVERIFY(whole->currentTime() < 1000);
        animation->stopAnimation();
        QCOMPARE(whole->state(), QAbstractAnimation::Stopped);
        QVERIFY(animation->isHidden());
    }

    void granulesDriftThroughOnTheSamePathsEveryTime()
    {
        PmAnimation again;
        again.init();
        const auto granules = animation->findChildren<QLabel *>("label_granule");
        QCOMPARE(granules.size(), 8);
        for (int i = 0; i < 8; ++i) {
            const QLabel *granule = granules.at(i);
            QCOMPARE(granule->pos(), again.findChildren<QLabel *>("label_granule").at(i)->pos());
            QCOMPARE(granule->size(), granule->pixmap(Qt::ReturnByValue).size());
            whole->setCurrentTime(6000);
            QVERIFY(granule->x() >= 100 && granule->y() >= 16 && granule->y() < 124);
            whole->setCurrentTime(14999);
            QVERIFY(granule->x() >= 440);
            whole->setCurrentTime(0);
            QCOMPARE(granule->x(), 0);
        }
    }

private:
    std::unique_ptr<PmAnimation> animation;
    QParallelAnimationGroup *whole = nullptr;
    QLabel *bar = nullptr;
};

ZELL_TEST_MAIN(TestPmAnimation)
#include "test_pm_animation.moc"
