#include "settings/OptionFrame.h"
#include "tests/support/Environment.h"
#include "tests/support/Touch.h"

#include <QLabel>
#include <QSignalSpy>

namespace {
/// Counts the presses that a tile lets through.
struct Ground : QWidget
{
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
};
} // namespace

class TestOptionFrame : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        ground = std::make_unique<Ground>();
        ground->setGeometry(0, 0, 854, 480);
        tile = new OptionFrame(ground.get());
        tile->setGeometry(300, 200, 300, 96);
        (new QLabel("caption", tile))->setGeometry(0, 0, 300, 96);
        ground->show();
        holdTimer = tile->findChild<QTimer *>();
        taps = std::make_unique<QSignalSpy>(tile, &OptionFrame::clicked);
    }

    void tapNeedsTheFingerNear_data()
    {
        QTest::addColumn<QPoint>("moved");
        QTest::addColumn<int>("expected");
        QTest::newRow("still") << QPoint(0, 0) << 1;
        QTest::newRow("99 px") << QPoint(-99, 99) << 1;
        QTest::newRow("100 px left") << QPoint(-100, 0) << 0;
        QTest::newRow("100 px right") << QPoint(100, 0) << 0;
        QTest::newRow("100 px up") << QPoint(0, -100) << 0;
        QTest::newRow("100 px down") << QPoint(0, 100) << 0;
    }

    void tapNeedsTheFingerNear()
    {
        QFETCH(QPoint, moved);
        drag(ground.get(), middle, middle + moved);
        QTEST(int(taps->size()), "expected");
        QCOMPARE(ground->presses, 1);
    }

    void distanceIsThatOfTheFinger()
    {
        pressAt(ground.get(), middle);
        tile->move(tile->x(), tile->y() - 100);
        releaseAt(ground.get(), middle - QPoint(0, 100));
        QCOMPARE(taps->size(), 0);
    }

    void holdIsNoTap()
    {
        QCOMPARE(holdTimer->interval(), 1000);
        holdTimer->setInterval(0);
        pressAt(ground.get(), middle);
        QTRY_VERIFY(!holdTimer->isActive());
        releaseAt(ground.get(), middle);
        QCOMPARE(taps->size(), 0);
    }

    void secondTapHasAWholeSecondOfItsOwn()
    {
        tapAt(ground.get(), middle);
        QTRY_VERIFY(holdTimer->remainingTime() < 800);
        pressAt(ground.get(), middle);
        QVERIFY(holdTimer->remainingTime() > 900);
        releaseAt(ground.get(), middle);
        QCOMPARE(taps->size(), 2);
        QCOMPARE(tile->findChildren<QTimer *>().size(), 1);
    }

    void otherButtonsAreNoTap()
    {
        QTest::mouseClick(tile, Qt::RightButton);
        QCOMPARE(taps->size(), 0);
    }

private:
    static constexpr QPoint middle{450, 248};
    std::unique_ptr<Ground> ground;
    OptionFrame *tile = nullptr;
    QTimer *holdTimer = nullptr;
    std::unique_ptr<QSignalSpy> taps;
};

ZELL_TEST_MAIN(TestOptionFrame)
#include "test_option_frame.moc"
