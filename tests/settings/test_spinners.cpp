#include "settings/QmlApplicationViewer.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/Touch.h"

#include <QDir>
#include <QQmlEngine>
#include <QQuickItem>
#include <malloc.h>
#include <memory>

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
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("rows");
        QTest::newRow("hour") << 0 << "21 22 23 >00 01 02 03";
        QTest::newRow("hour12") << 10 << "07 08 09 >10 11 00 01";
        QTest::newRow("minute") << 59 << "56 57 58 >59 00 01 02";
        QTest::newRow("amp") << 0 << "下午 >上午";
        QTest::newRow("amp") << 1 << "上午 >下午";
    }

    void rowsStandInTheirPlaces()
    {
        QFETCH(int, index);
        const MessageLog log;
        load(QTest::currentDataTag(), index);
        QCOMPARE(host->currentIndex(), index);
        QTEST(texts().join(' '), "rows");
        QVERIFY(rows().size() == 2 || areRowsWithoutGap());
        const char *const shades[] = {"#00e5ff", "#a9a9aa", "#646464", "#373739"};
        const int current = int(rows().size() / 2);
        QCOMPARE(middleOf(rows()[current]), current == 1 ? 107.5 : 182.5);
        for (int row = 0; row < rows().size(); ++row)
            QCOMPARE(rows()[row]->property("color").toString(), shades[std::abs(row - current)]);
        QCOMPARE(log.lines(), QStringList());
    }

    void dateWheelIsAYearAroundToday()
    {
        const std::tuple<QDate, int, const char *> cases[] = {
            {{2024, 2, 28}, 1, ">02月29日 星期四"},
            {{2024, 2, 28}, 181, ">08月27日 星期二"},
            {{2024, 2, 28}, 182, ">08月29日 星期二"},
            {{2023, 12, 31}, 1, ">01月01日 星期一"},
            {{2016, 11, 21}, 364, ">11月20日 星期天"}};
        for (const auto &[today, index, text] : cases) {
            load("date", index);
            QCOMPARE(host->rootObject()->property("today").toDate(), QDate::currentDate());
            host->rootObject()->setProperty("today", today.startOfDay());
            QCOMPARE(texts()[3], text);
        }
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
        QVERIFY(host->rootObject() != nullptr && host->currentIndex() == -1);
        host->setMainQmlFile("no such.qml");
        QVERIFY(host->rootObject() == nullptr && host->currentIndex() == -1);
        QVERIFY(log.lines().size() == 1 && log.contains("no such.qml"));
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

    /// What is written in the rows, the large one marked.
    QStringList texts() const
    {
        QStringList list;
        for (const auto *row : rows()) {
            const bool large = row->property("font").value<QFont>().pixelSize() == 36;
            list << (large ? ">" : "") + row->property("text").toString();
        }
        return list;
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
