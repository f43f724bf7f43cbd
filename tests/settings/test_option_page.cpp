#include "settings/OptionPage.h"
#include "shell/MainWindow.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/Touch.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QMetaMethod>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStackedWidget>

namespace {
/// How long no widget of the program has been painted.
class SinceLastPaint : public QObject
{
public:
    SinceLastPaint()
    {
        time.start();
        qApp->installEventFilter(this);
    }
    qint64 milliseconds() const { return time.elapsed(); }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            time.start();
        return false;
    }

private:
    QElapsedTimer time;
};
} // namespace

class TestOptionPage : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        window = std::make_unique<QWidget>();
        window->resize(854, 480);
        page = new OptionPage(window.get());
        window->show();
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
        QMetaObject::invokeMethod(page, qPrintable(jump));
        const QString problem =
            pictureDifference(window->grab().toImage(), ZELL_REFERENCE_DIR, jump + ".png");
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
    }

    void openPagesPaintNothingByThemselves()
    {
        std::vector<std::unique_ptr<OptionPage>> menus;
        const QMetaObject &meta = OptionPage::staticMetaObject;
        for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
            if (!meta.method(index).name().startsWith("jump_"))
                continue;
            menus.push_back(std::make_unique<OptionPage>());
            menus.back()->show();
            meta.method(index).invoke(menus.back().get());
        }
        QCOMPARE(menus.size(), 9U);
        const SinceLastPaint quiet;
        QTRY_VERIFY2(quiet.milliseconds() > 1200, "a page paints at least once a second");
    }

    void confirmationOfTheResetStays()
    {
        QMetaObject::invokeMethod(page, "jump_resetFactory_page");
        tapAt(page, {427, 388});
        MessageLog log;
        tapAt(page, {567, 318});
        QCOMPARE(log.lines(), QStringList{"start factory reset..."});
        QVERIFY(visibleChild(page, "FactoryReset_Confirm"));
        tapAt(page, {287, 318});
        QVERIFY(!visibleChild(page, "FactoryReset_Confirm"));
        QVERIFY(visibleChild(page, "label_factoryReset"));
        tapAt(page, {427, 388});
        QCOMPARE(page->findChildren<QWidget *>("FactoryReset_Confirm").size(), 2);
    }

    void dragScrollsOverTilesAndGainsSpeed()
    {
        QSignalSpy taps(page->findChild<QWidget *>("option_setLocation"), SIGNAL(clicked()));
        pressAt(page, {200, 360});
        moveTo(page, {200, 340});
        QTRY_COMPARE(scrollBar->value(), 20);
        moveTo(page, {200, 339});
        QTRY_COMPARE(scrollBar->value(), 41);
        moveTo(page, {200, 260});
        QTRY_COMPARE(scrollBar->value(), 141);
        releaseAt(page, {200, 260});
        QTRY_COMPARE(scrollBar->value(), scrollBar->maximum());
        QCOMPARE(taps.size(), 0);
        drag(page, {600, 100}, {600, 400});
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
        MainWindow mainWindow;
        mainWindow.show();
        auto *stack = mainWindow.findChild<QStackedWidget *>("stackedWidget");
        QMetaObject::invokeMethod(&mainWindow, "jump_toOption");
        QTRY_COMPARE(stack->currentWidget()->objectName(), "page_option");
        auto *menu = mainWindow.findChild<OptionPage *>();
        QVERIFY(menu->isVisible() && menu->is_allowed_slide());
        tap(visibleChild(menu, "button_back"));
        QCOMPARE(stack->currentWidget()->objectName(), "page_main");
    }

private:
    std::unique_ptr<QWidget> window;
    OptionPage *page = nullptr;
    QScrollBar *scrollBar = nullptr;
};

ZELL_TEST_MAIN(TestOptionPage)
#include "test_option_page.moc"
