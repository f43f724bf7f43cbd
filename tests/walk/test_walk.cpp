#include "store/ZellDatabase.h"
#include "testkit/Environment.h"
#include "testkit/FixedClock.h"
#include "testkit/PictureCompare.h"
#include "walk/Languages.h"
#include "walk/LayoutCheck.h"
#include "walk/Walk.h"

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
        const InLanguage spoken(Language("ZH_SIMPLE.qm"));
        QStringList findings;
        Walk walk;
        const std::vector<Stop> stops = wholeWalk();
        QCOMPARE(QDir(ZELL_REFERENCE_DIR).entryList({"*.png"}).size(), qsizetype(stops.size()));
        for (const Stop &stop : stops) {
            stop.go(walk);
            const QString difference =
                pictureDifference(walk.picture(), ZELL_REFERENCE_DIR, stop.name + ".png");
            if (!difference.isEmpty())
                findings.append(difference);
            for (const QString &finding : layoutFindings(walk.screen()))
                findings.append(stop.name + ": " + finding);
        }
        QVERIFY2(findings.isEmpty(), qPrintable(findings.join('\n')));
    }

    // Other texts have other lengths: nothing may be cut, nothing may push another aside.
    void traditionalChinese()
    {
        const InLanguage spoken(Language("ZH_COMPLEX.qm"));
        QStringList findings;
        Walk walk;
        for (const Stop &stop : wholeWalk()) {
            stop.go(walk);
            for (const QString &finding : layoutFindings(walk.screen()))
                findings.append(stop.name + ": " + finding);
        }
        QVERIFY2(findings.isEmpty(), qPrintable(findings.join('\n')));
    }

private:
    std::unique_ptr<ZellDatabase> database;
};

ZELL_TEST_MAIN(TestWalk)
#include "test_walk.moc"
