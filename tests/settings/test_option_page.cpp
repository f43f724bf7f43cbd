#include "settings/OptionPage.h"
#include "shell/MainWindow.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/Touch.h"

#include <QCheckBox>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStackedWidget>

class TestOptionPage : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        page = std::make_unique<OptionPage>();
        page->show();
        scrollBar = page->findChild<QScrollArea *>("scrollArea")->verticalScrollBar();
    }

    void tileOpensAFreshPageAndComesBack_data()
    {
        QTest::addColumn<QString>("holder");
        QTest::addColumn<QString>("pageClass");
        QTest::newRow("option_adjustLight") << "page_adjustLight"
                                            << "adjustLight";
        QTest::newRow("option_frame_nightPattern") << "page_nightMode"
                                                   << "nightModePage";
        QTest::newRow("option_setTime") << "page_setTime"
                                        << "SetTimePage";
        QTest::newRow("option_frame_language") << "page_setLanguage"
                                               << "setLanguagePage";
        QTest::newRow("option_resetFactory") << "page_resetFactory"
                                             << "Factory_Reset";
    }

    void tileOpensAFreshPageAndComesBack()
    {
        QFETCH(QString, holder);
        auto *stack = page->findChild<QStackedWidget *>("stackedWidget");
        auto *tile = page->findChild<QWidget *>(QTest::currentDataTag());
        QWidget *former = nullptr;
        for (int visit = 1; visit <= 2; ++visit) {
            scrollBar->setValue(tile->y());
            tap(tile);
            QCOMPARE(stack->currentWidget()->objectName(), holder);
            QVERIFY(!page->is_allowed_slide());
            const auto visits = stack->currentWidget()->findChildren<QWidget *>(
                QString(), Qt::FindDirectChildrenOnly);
            QCOMPARE(visits.size(), visit);
            QTEST(QString(visits.last()->metaObject()->className()), "pageClass");
            QVERIFY(visits.last() != former);
            QVERIFY(visits.last()->isAncestorOf(page->childAt(400, 300)) ||
                    visits.last() == page->childAt(400, 300));
            former = visits.last();
            tap(former->findChild<QPushButton *>("button_back"));
            QVERIFY(page->is_allowed_slide());
        }
    }

    void pagesLookAsDrawn_data()
    {
        QTest::addColumn<QString>("jump");
        for (const char *name :
             {"back_default", "jump_adjustLight", "jump_setLanguage", "jump_resetFactory"})
            QTest::newRow(name) << QString(name) + "_page";
    }

    void pagesLookAsDrawn()
    {
        QFETCH(QString, jump);
        QMetaObject::invokeMethod(page.get(), qPrintable(jump));
        const QString problem =
            pictureDifference(page->grab().toImage(), ZELL_REFERENCE_DIR, jump + ".png");
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
    }

    void confirmationOfTheResetStays()
    {
        QMetaObject::invokeMethod(page.get(), "jump_resetFactory_page");
        tapAt(page.get(), {427, 388});
        MessageLog log;
        tapAt(page.get(), {567, 318});
        QCOMPARE(log.lines(), QStringList{"start factory reset..."});
        QVERIFY(visibleChild(page.get(), "FactoryReset_Confirm"));
        tapAt(page.get(), {287, 318});
        QVERIFY(!visibleChild(page.get(), "FactoryReset_Confirm"));
        QVERIFY(visibleChild(page.get(), "label_factoryReset"));
        tapAt(page.get(), {427, 388});
        QCOMPARE(page->findChildren<QWidget *>("FactoryReset_Confirm").size(), 2);
    }

    void dragScrollsOverTilesAndGainsSpeed()
    {
        QSignalSpy taps(page->findChild<QWidget *>("option_setLocation"), SIGNAL(clicked()));
        pressAt(page.get(), {200, 360});
        moveTo(page.get(), {200, 340});
        QTRY_COMPARE(scrollBar->value(), 20);
        moveTo(page.get(), {200, 339});
        QTRY_COMPARE(scrollBar->value(), 41);
        moveTo(page.get(), {200, 260});
        QTRY_COMPARE(scrollBar->value(), 141);
        releaseAt(page.get(), {200, 260});
        QTRY_COMPARE(scrollBar->value(), scrollBar->maximum());
        QCOMPARE(taps.size(), 0);
        drag(page.get(), {600, 100}, {600, 400});
        QTRY_COMPARE(scrollBar->value(), 0);
    }

    void unitSwitchMovesTheColourOnly()
    {
        scrollBar->setValue(scrollBar->maximum());
        auto *unit = page->findChild<QCheckBox *>("checkBox_tempture");
        const auto colours = [this] {
            return page->findChild<QWidget *>("label_C")->styleSheet() + '|' +
                   page->findChild<QWidget *>("label_F")->styleSheet();
        };
        const QString celsius = "QLabel{font-size:24px;color:#00E5FF;}|"
                                "QLabel{font-size:24px;color:#FFFFFF;}";
        QVERIFY(unit->isChecked());
        QCOMPARE(colours(), celsius);
        MessageLog log;
        tap(unit);
        QCOMPARE(log.lines(), QStringList{"tempture is ℉..."});
        QCOMPARE(colours(), celsius.section('|', 1) + '|' + celsius.section('|', 0, 0));
        tap(unit);
        QCOMPARE(log.lines().last(), "tempture is ℃...");
        QCOMPARE(colours(), celsius);
    }

    void backLeadsToTheMainScreen()
    {
        MainWindow window;
        window.show();
        auto *stack = window.findChild<QStackedWidget *>("stackedWidget");
        QMetaObject::invokeMethod(&window, "jump_toOption");
        QTRY_COMPARE(stack->currentWidget()->objectName(), "page_option");
        auto *menu = window.findChild<OptionPage *>();
        QVERIFY(menu->isVisible() && menu->is_allowed_slide());
        tap(visibleChild(menu, "button_back"));
        QCOMPARE(stack->currentWidget()->objectName(), "page_main");
    }

private:
    std::unique_ptr<OptionPage> page;
    QScrollBar *scrollBar = nullptr;
};

ZELL_TEST_MAIN(TestOptionPage)
#include "test_option_page.moc"
