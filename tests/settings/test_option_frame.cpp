#include "settings/OptionFrame.h"
#include "testkit/Environment.h"
#include "testkit/TableRows.h"
#include "testkit/Touch.h"

#include <QSignalSpy>

namespace {
struct Tap
{
    const char *name;
    QPoint moved;
    QPoint scrolled;
    int taps;
};
} // namespace

class TestOptionFrame : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        tile->setGeometry(300, 200, 300, 96);
        ground.resize(854, 480);
        ground.show();
        taps.clear();
    }

    void tapNeedsTheFingerNear_data()
    {
        addRows<Tap>({{"near on both axes", {-99, 99}, {}, 1},
                      {"far to the left", {-100, 0}, {}, 0},
                      {"far down", {0, 100}, {}, 0},
                      {"far with its tile", {0, 100}, {0, 100}, 0}});
    }

    void tapNeedsTheFingerNear()
    {
        QFETCH(Tap, row);
        pressAt(&ground, middle);
        tile->move(tile->pos() + row.scrolled);
        moveTo(&ground, middle + row.moved);
        releaseAt(&ground, middle + row.moved);
        QCOMPARE(taps.size(), row.taps);
    }

    void holdIsNoTapButASecondTapIsOne()
    {
        auto *holdTimer = tile->findChild<QTimer *>();
        QCOMPARE(holdTimer->interval(), 1000);
        QCOMPARE(holdTimer->timerType(), Qt::PreciseTimer);
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
