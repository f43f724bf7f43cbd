#include "settings/QmlApplicationViewer.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"
#include "testkit/Touch.h"

#include <QDir>
#include <QQmlEngine>
#include <QQuickItem>
#include <QScopeGuard>
#include <malloc.h>
#include <memory>

namespace {
struct Wheel
{
    const char *name;
    QString file;
    int index;
    QStringList texts;
};

struct Day
{
    const char *name;
    QDate today;
    int index;
    QString text;
};

struct Zone
{
    const char *name;
    QByteArray zone;
    QDate eve;
};
} // namespace

class TestSpinners : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        page = std::make_unique<QWidget>();
        page->resize(854, 480);
        host = new QmlApplicationViewer(page.get());
        host->setGeometry(88, 98, 350, 320);
        host->hide();
        page->show();
    }

    void rowsStandInTheirPlaces_data()
    {
        addRows<Wheel>(
            {{"hours", "hour", 0, {"21", "22", "23", "00", "01", "02", "03"}},
             {"hours of half a day", "hour12", 10, {"07", "08", "09", "10", "11", "00", "01"}},
             {"minutes", "minute", 59, {"56", "57", "58", "59", "00", "01", "02"}},
             {"morning", "amp", 0, {"下午", "上午"}},
             {"afternoon", "amp", 1, {"上午", "下午"}}});
    }

    void rowsStandInTheirPlaces()
    {
        QFETCH(Wheel, row);
        const MessageLog log;
        load(row.file, row.index);
        QCOMPARE(host->currentIndex(), row.index);
        if (row.file != "amp")
            QVERIFY(areRowsWithoutGap());
        const char *const shades[] = {"#00e5ff", "#a9a9aa", "#646464", "#373739"};
        const int current = int(rows().size() / 2);
        QCOMPARE(middleOf(rows()[current]), current == 1 ? 107.5 : 182.5);
        QStringList texts;
        for (const QQuickItem *item : rows()) {
            const auto distance = std::abs(texts.size() - current);
            texts << item->property("text").toString();
            QCOMPARE(item->property("color").toString(), shades[distance]);
            QCOMPARE(item->property("font").value<QFont>().pixelSize(), distance == 0 ? 36 : 24);
        }
        QCOMPARE(texts, row.texts);
        QCOMPARE(log.lines(), QStringList());
    }

    void dateWheelIsAYearAroundToday_data()
    {
        addRows<Day>({{"leap day", {2024, 2, 28}, 1, "02月29日 星期四"},
                      {"last ahead", {2024, 2, 28}, 181, "08月27日 星期二"},
                      {"first behind", {2024, 2, 28}, 182, "08月29日 星期二"},
                      {"next year", {2023, 12, 31}, 1, "01月01日 星期一"},
                      {"yesterday", {2016, 11, 21}, 364, "11月20日 星期天"}});
    }

    void dateWheelIsAYearAroundToday()
    {
        QFETCH(Day, row);
        load("date", row.index);
        QCOMPARE(host->rootObject()->property("today").toDate(), QDate::currentDate());
        host->rootObject()->setProperty("today", row.today.startOfDay());
        QCOMPARE(rows()[3]->property("text").toString(), row.text);
    }

    void everyDayHasItsNameWhereSummerBeginsAtMidnight_data()
    {
        addRows<Zone>({{"Lebanon", "Asia/Beirut", {2024, 3, 30}},
                       {"Egypt", "Africa/Cairo", {2024, 4, 25}},
                       {"Chile", "America/Santiago", {2024, 9, 7}}});
    }

    void everyDayHasItsNameWhereSummerBeginsAtMidnight()
    {
        QFETCH(Zone, row);
        const QByteArray before = qgetenv("TZ");
        const auto enter = [this](const QByteArray &zone) {
            qputenv("TZ", zone);
            tzset();
            host->engine()->evaluate("Date.timeZoneUpdated()");
        };
        enter(row.zone);
        const auto leave = qScopeGuard([&] { enter(before); });
        load("date");
        // In the last hour before the one that is left out.
        host->rootObject()->setProperty("today", QDateTime(row.eve, QTime(23, 30)));
        QSet<QString> names;
        for (int index = 0; index < 365; ++index) {
            QString name;
            QMetaObject::invokeMethod(host->rootObject(), "dayText", Q_RETURN_ARG(QString, name),
                                      Q_ARG(int, index));
            names.insert(name);
        }
        QCOMPARE(names.size(), 365);
        QCOMPARE(host->rootObject()->property("untilMidnight").toInt(), 1000);
    }

    void fingerTurnsWithoutGapAndStopsOnARow()
    {
        load("date");
        pressAt(page.get(), {240, 280});
        for (int y = 280; y > 80; y -= 7) {
            moveTo(page.get(), {240, y});
            QVERIFY2(areRowsWithoutGap(), qPrintable(QString::number(y)));
        }
        releaseAt(page.get(), {240, 80});
        QTRY_VERIFY_WITH_TIMEOUT(!wheel()->property("moving").toBool(), 15000);
        QVERIFY(host->currentIndex() > 2);
        QVERIFY(std::abs(middleOf(rows()[3]) - 182.5) < 0.5);
    }

    void hiddenSpinnerHoldsNoPictureButItsRow()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("the sanitizer's allocator keeps no count");
#endif
        load("hour", 9);
        const QImage before = page->grab().toImage();
        constexpr auto picture = std::size_t{350} * 320 * 4;
        const std::size_t shown = bytesInUse();
        page->hide();
        const std::size_t hidden = bytesInUse();
        QVERIFY(shown > hidden + picture * 9 / 10);
        page->show();
        QVERIFY(bytesInUse() > hidden + picture * 9 / 10);
        QCOMPARE(page->grab().toImage(), before);
    }

    void pathsAndTheSharedEngine()
    {
        const QTemporaryDir folder(QCoreApplication::applicationDirPath() + "/../qmlXXXXXX");
        QFile::copy(":/resource/qml/content/SpinnerText.qml", folder.filePath("one.qml"));
        const MessageLog log;
        const QString relative = QFileInfo(folder.path()).fileName();
        host->setMainQmlFile(relative + "/one.qml");
        QVERIFY(host->rootObject());
        QCOMPARE(host->currentIndex(), -1);
        host->setMainQmlFile("no such.qml");
        QVERIFY(!host->rootObject());
        QCOMPARE(host->currentIndex(), -1);
        QCOMPARE(log.lines().size(), 1);
        QVERIFY(log.contains("no such.qml"));
        QmlApplicationViewer(host, page.get()).addImportPath(relative);
        QCOMPARE(QmlApplicationViewer(nullptr, nullptr).engine()->importPathList().first(),
                 QDir(folder.path()).canonicalPath());
    }

private:
    void load(const QString &file, int row = 0)
    {
        host->setMainQmlFile(QStringLiteral("qrc:/resource/qml/spinner_%1.qml").arg(file), row);
        host->showExpanded();
    }

    QQuickItem *wheel() const
    {
        return host->rootObject()->findChild<QQuickItem *>("wheel");
    }

    /// The rows that the wheel has placed, from top to bottom.
    QList<QQuickItem *> rows() const
    {
        QList<QQuickItem *> found;
        for (auto *item : wheel()->childItems()[0]->childItems()) {
            if (item->property("text").isValid())
                found << item;
        }
        std::sort(found.begin(), found.end(), [](auto *a, auto *b) { return a->y() < b->y(); });
        return found;
    }

    /// The middle of @p row in px below the top of the host.
    static double middleOf(const QQuickItem *row)
    {
        return row->mapToScene({0, row->height() / 2}).y();
    }

    /// Whether seven rows follow one another evenly and the next one at either end would be wholly
    /// out of the wheel's window, 20 to 320.
    bool areRowsWithoutGap() const
    {
        constexpr double pitch = 62.5;
        const auto placed = rows();
        bool even = placed.size() == 7;
        for (int i = 1; i < placed.size(); ++i)
            even &= std::abs(middleOf(placed[i]) - middleOf(placed[i - 1]) - pitch) < 0.01;
        return even && middleOf(placed.first()) < pitch && middleOf(placed.last()) + pitch > 340;
    }

    static std::size_t bytesInUse()
    {
        return mallinfo2().uordblks + mallinfo2().hblkhd;
    }

    std::unique_ptr<QWidget> page;
    QmlApplicationViewer *host = nullptr;
};

ZELL_TEST_MAIN(TestSpinners)
#include "test_spinners.moc"
