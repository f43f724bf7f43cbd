#include "settings/QmlApplicationViewer.h"
#include "tests/settings/SpinnerRows.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/Touch.h"

#include <QDir>
#include <QQmlEngine>
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
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("rows");
        QTest::addColumn<QString>("shades");
        const QString seven = "#373739 #646464 #a9a9aa #00e5ff #a9a9aa #646464 #373739";
        QTest::newRow("hour") << "hour" << 0 << "21 22 23 00 01 02 03" << seven;
        QTest::newRow("12 hours") << "hour12" << 10 << "07 08 09 10 11 00 01" << seven;
        QTest::newRow("minute") << "minute" << 59 << "56 57 58 59 00 01 02" << seven;
        QTest::newRow("morning") << "amp" << 0 << "下午 上午"
                                 << "#a9a9aa #00e5ff";
        QTest::newRow("afternoon") << "amp" << 1 << "上午 下午"
                                   << "#a9a9aa #00e5ff";
    }

    void rowsStandInTheirPlaces()
    {
        QFETCH(QString, file);
        QFETCH(int, index);
        MessageLog log;
        load(file, index);
        QCOMPARE(host->currentIndex(), index);
        QStringList texts;
        QStringList shades;
        for (const QQuickItem *row : spinnerRows(host)) {
            texts << row->property("text").toString();
            shades << row->property("color").value<QColor>().name();
            if (shades.last() == "#00e5ff")
                QCOMPARE(middleOf(row), file == "amp" ? 107.5 : 182.5);
        }
        QTEST(texts.join(' '), "rows");
        QTEST(shades.join(' '), "shades");
        QVERIFY(file == "amp" || rowsWithoutGap());
        QCOMPARE(log.lines(), QStringList());
    }

    void dateWheelIsAYearAroundToday_data()
    {
        QTest::addColumn<QDate>("today");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("text");
        const QDate leap(2024, 2, 28);
        QTest::newRow("today") << leap << 0 << "02月28日 星期三";
        QTest::newRow("leap day") << leap << 1 << "02月29日 星期四";
        QTest::newRow("last coming day") << leap << 181 << "08月27日 星期二";
        QTest::newRow("first past day") << leap << 182 << "08月29日 星期二";
        QTest::newRow("over the year") << QDate(2023, 12, 31) << 1 << "01月01日 星期一";
        QTest::newRow("Sunday") << QDate(2016, 11, 21) << 364 << "11月20日 星期天";
    }

    void dateWheelIsAYearAroundToday()
    {
        QFETCH(QDate, today);
        QFETCH(int, index);
        load("date", index);
        QCOMPARE(host->rootObject()->property("today").toDate(), QDate::currentDate());
        host->rootObject()->setProperty("today", today.startOfDay());
        QTEST(currentText(host), "text");
    }

    void fingerTurnsWithoutGapAndStopsOnARow()
    {
        load("date");
        pressAt(page.get(), {240, 280});
        for (int y = 280; y > 80; y -= 7) {
            moveTo(page.get(), {240, y});
            QVERIFY2(rowsWithoutGap(), qPrintable(QString::number(y)));
        }
        releaseAt(page.get(), {240, 80});
        const auto *wheel = host->rootObject()->findChild<QQuickItem *>("wheel");
        QTRY_COMPARE_WITH_TIMEOUT(wheel->property("moving"), false, 15000);
        QVERIFY(host->currentIndex() > 2);
        QVERIFY(std::abs(middleOf(spinnerRows(host)[3]) - 182.5) < 0.5);
    }

    void hiddenSpinnerHoldsNoPictureButItsRow()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("the sanitizer's allocator keeps no count");
#endif
        load("hour", 9);
        const QImage before = page->grab().toImage();
        constexpr qint64 picture = 350 * 320 * 4;
        const qint64 shown = bytesInUse();
        page->hide();
        const qint64 hidden = bytesInUse();
        QVERIFY2(shown - hidden > picture * 9 / 10, qPrintable(QString::number(shown - hidden)));
        QCOMPARE(host->geometry(), QRect(88, 98, 350, 320));
        QCOMPARE(host->currentIndex(), 9);
        page->show();
        QVERIFY(bytesInUse() - hidden > picture * 9 / 10);
        QCOMPARE(page->grab().toImage(), before);
        host->hide();
        QVERIFY(page->grab().toImage() != before);
    }

    void pathsAndTheSharedEngine()
    {
        QTemporaryDir folder(QCoreApplication::applicationDirPath() + "/../qmlXXXXXX");
        QFile::copy(":/resource/qml/content/SpinnerText.qml", folder.filePath("one.qml"));
        MessageLog log;
        const QString relative = QFileInfo(folder.path()).fileName();
        host->setMainQmlFile(relative + "/one.qml");
        QVERIFY(host->rootObject() != nullptr);
        QCOMPARE(host->currentIndex(), -1);
        QCOMPARE(log.lines(), QStringList());
        host->setMainQmlFile("no such.qml");
        QVERIFY(!page->grab().isNull() && host->rootObject() == nullptr);
        QCOMPARE(log.count("no such.qml"), 1);

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

    /// Whether seven rows follow one another evenly and the next one at either end would be wholly
    /// out of the wheel's window, 20 to 320.
    bool rowsWithoutGap() const
    {
        constexpr double pitch = 62.5;
        const auto rows = spinnerRows(host);
        for (int i = 1; i < rows.size(); ++i) {
            if (std::abs(middleOf(rows[i]) - middleOf(rows[i - 1]) - pitch) > 0.01)
                return false;
        }
        return rows.size() == 7 && middleOf(rows.first()) < pitch &&
               middleOf(rows.last()) + pitch > 340;
    }

    static qint64 bytesInUse()
    {
        const struct mallinfo2 heap = mallinfo2();
        return qint64(heap.uordblks + heap.hblkhd);
    }

    std::unique_ptr<QWidget> page;
    QmlApplicationViewer *host = nullptr;
};

ZELL_TEST_MAIN(TestSpinners)
#include "test_spinners.moc"
