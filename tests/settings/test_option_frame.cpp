#include "settings/OptionFrame.h"
#include "testkit/Environment.h"
#include "testkit/Touch.h"

#include <QSignalSpy>

class TestOptionFrame : public QObject
{
    Q_OBJECT

private slots:
    void tapNeedsTheFingerNear()
    {
        tile->setGeometry(300, 200, 300, 96);
        ground.resize(854, 480);
        ground.show();
        for (const QPoint &moved : {QPoint(-99, 99), QPoint(-100, 0), QPoint(0, 100)})
            drag(&ground, middle, middle + moved);
        QCOMPARE(taps.size(), 1);
        pressAt(&ground, middle);
        tile->move(tile->pos() + QPoint(0, 100));
        releaseAt(&ground, middle + QPoint(0, 100));
        QCOMPARE(taps.size(), 1);
        tile->move(tile->pos() - QPoint(0, 100));
        taps.clear();
    }

    void holdIsNoTapButASecondTapIsOne()
    {
        auto *holdTimer = tile->findChild<QTimer *>();
        QCOMPARE(holdTimer->interval(), 1000);
        tapAt(&ground, middle);
        QTRY_VERIFY(holdTimer->remainingTime() < 800);
        tapAt(&ground, middle);
        QVERIFY(holdTimer->remainingTime() > 900);
        QCOMPARE(taps.size(), 2);
        holdTimer->setInterval(0);
        pressAt(&ground, middle);
        QTRY_VERIFY(!holdTimer->isActive());
        releaseAt(&ground, middle);
        QCOMPARE(taps.size(), 2);
    }

private:
    static constexpr QPoint middle{450, 248};
    QWidget ground;
    OptionFrame *tile = new OptionFrame(&ground);
    QSignalSpy taps{tile, &OptionFrame::clicked};
};

ZELL_TEST_MAIN(TestOptionFrame)
#include "test_option_frame.moc"
