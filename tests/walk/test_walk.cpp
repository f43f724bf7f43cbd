#include "store/ZellDatabase.h"
#include "testkit/Environment.h"
#include "testkit/FixedClock.h"
#include "testkit/PictureCompare.h"
#include "walk/HeldPresses.h"
#include "walk/Languages.h"
#include "walk/Stops.h"

#include <QDir>

/// Walks through the whole product and holds every stop against its reference picture. The stops
/// follow one another: a single one cannot be run alone.
class TestWalk : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        stopCalendarAt(walkTime);
        QApplication::setCursorFlashTime(0);
        database = std::make_unique<ZellDatabase>();
        zelldatabase = database.get();
    }

    void simplifiedChinese()
    {
        QStringList unseen = QDir(ZELL_REFERENCE_DIR).entryList({"*.png"});
        QStringList differences;
        const auto compare = [&](const QString &stop, Walk &walk) {
            differences += pictureDifference(walk.picture(), ZELL_REFERENCE_DIR, stop + ".png");
            unseen.removeOne(stop + ".png");
            return holdEverything(walk);
        };
        const QStringList findings = walkThrough(Language("ZH_SIMPLE.qm"), compare);
        differences.removeAll(QString());
        QVERIFY2(differences.isEmpty(), qPrintable(differences.join('\n')));
        QVERIFY2(findings.isEmpty(), qPrintable(findings.join('\n')));
        QVERIFY2(unseen.isEmpty(), qPrintable("no stop shows " + unseen.join(", ")));
    }

    // Other texts have other lengths: nothing may be cut, nothing may push another aside.
    void traditionalChinese()
    {
        const QStringList findings =
            walkThrough(Language("ZH_COMPLEX.qm"),
                        [](auto &, const Walk &walk) { return holdEverything(walk); });
        QVERIFY2(findings.isEmpty(), qPrintable(findings.join('\n')));
    }

private:
    std::unique_ptr<ZellDatabase> database;
};

ZELL_TEST_MAIN(TestWalk)
#include "test_walk.moc"
