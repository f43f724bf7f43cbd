#include "connectivity/SetWifiPage.h"
#include "connectivity/passwordKeyboard.h"
#include "pages/PageHolder.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/ModelColumn.h"
#include "testkit/TableRows.h"
#include "testkit/Touch.h"

#include <QDir>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <functional>

namespace {
void scanFinds(const QStringList &names)
{
    QVERIFY(Environment::device().setNetworks(names));
    QVERIFY(QDir().mkpath("../resource"));
}

const QStringList parts{"listView", "scrollArea", "label_noWifi", "icon_noWifi", "info_noWifi"};

// The page in the holder of a menu.
struct Screen
{
    Screen()
    {
        window.addWidget(new QWidget);
        auto *holder = new PageHolder;
        window.addWidget(holder);
        window.resize(854, 480);
        window.show();
        page = holder->open<SetWifiPage>();
        list = page->findChild<QListView *>("listView");
    }

    void tapRow(int row) { tapAt(&window, rowAt(row)); }
    void tapBack() { tapAt(&window, {40, 40}); }
    QPoint rowAt(int line) const { return {400, 80 + 80 * line + 40}; }
    // Runs @p action from the event loop after every change of a connect state.
    void whileConnecting(const std::function<void()> &action)
    {
        QObject::connect(list->model(), &QAbstractItemModel::modelReset, &window, action,
                         Qt::QueuedConnection);
    }
    QVariantList names() const { return columnOf(*list->model(), Qt::DisplayRole); }
    QVariantList states() const { return columnOf(*list->model(), Qt::CheckStateRole); }
    auto current() { return page->findChild<QStackedWidget *>()->currentWidget()->objectName(); }
    auto passwordPages() const { return page->findChildren<passwordKeyboard *>(); }

    QStackedWidget window;
    QPointer<SetWifiPage> page;
    QListView *list;
};

// How the page goes while a network is being connected, and what it opens after that.
struct Departure
{
    const char *name;
    std::function<void(Screen &)> go;
    int passwordPages;
};

QStringList visibleOf(QWidget *page, QStringList names)
{
    names.removeIf([page](const QString &name) { return !visibleChild(page, name); });
    return names;
}
} // namespace

class TestWifiPages : public QObject
{
    Q_OBJECT

private slots:
    void scanIsListed()
    {
        scanFinds({"Home", "", "Home"});
        MessageLog log;
        Screen screen;
        QCOMPARE(screen.names(), (QVariantList{"Home", "", "Home"}));
        QCOMPARE(screen.states(), (QVariantList{0, 0, 0}));
        QCOMPARE(screen.page->findChildren<QAbstractItemModel *>().size(), 1);
        QCOMPARE(visibleOf(screen.page, parts), parts.first(2));
        QCOMPARE(log.count("strEverySSIDName \"Home\""), 2);
        screen.page->onListWifiItemClicked({}, {});
        QCOMPARE(screen.current(), "page_defalut");
        screen.page->startTimer(1);
        QTRY_COMPARE(screen.names().first(), "A");
        QCOMPARE(screen.names().last(), "Home");
    }

    void withoutAResultThereIsNoWifi()
    {
        MessageLog log;
        scanFinds({});
        Environment::writeDeviceFile("/../resource/WiFi-SSID.txt", "of the scan before");
        QCOMPARE(visibleOf(Screen().page, parts), parts.last(3));
        QVERIFY(QDir("../resource").removeRecursively());
        Screen screen;
        QCOMPARE(visibleOf(screen.page, parts), parts.last(3));
        screen.tapBack();
        QCOMPARE(log.count("file zize =  0"), 2);
        QCOMPARE(log.count("Timer Killed"), 1);
    }

    void workingDirectoryMayHaveAnyName()
    {
        scanFinds({"Home"});
        const QString home = QDir::currentPath();
        const QString directory = "place/a b;c'\"$d&|>*";
        QVERIFY(QDir().mkpath(directory));
        QVERIFY(QDir().mkpath("place/resource"));
        QDir::setCurrent(directory);
        QCOMPARE(Screen().names(), QVariantList{"Home"});
        QDir::setCurrent(home);
        QVERIFY(QDir(directory).isEmpty());
    }

    void tapOpensThePasswordPage()
    {
        scanFinds({"Home", "<h1>" + QString(200, 'x')});
        Screen screen;
        screen.tapRow(1);
        QCOMPARE(screen.states(), (QVariantList{0, 1}));
        QCOMPARE(screen.current(), "page_passwordKeyboard");
        // What comes from the air is plain text, and cut where it does not fit.
        auto *passwords = screen.passwordPages().first();
        auto *title = passwords->findChild<QLabel *>("label_title");
        QCOMPARE(title->textFormat(), Qt::PlainText);
        QVERIFY(title->text().startsWith("<h1>xxx"));
        QVERIFY(title->text().endsWith("…"));
        MessageLog log;
        tap(visibleChild(screen.page, "button_enter"));
        QVERIFY(log.contains("check password backstage..."));
        // The name is handed on whole: where there is more room, more of it is shown.
        const QString cut = title->text();
        title->resize(title->width() / 2, title->height());
        passwords->setNetwork("<h1>" + QString(200, 'x'));
        passwords->jump_wifiConnectResult_page();
        QCOMPARE(passwords->findChildren<QLabel *>("label_title").last()->text(), cut);
        QVERIFY(title->text().size() < cut.size());
        for (const char *name : {"button_forgetSuccess", "button_forgetFail", "button_retryFail"})
            passwords->findChild<QPushButton *>(name)->click();
        QCOMPARE(log.count("forget this wifi..."), 2);
        QCOMPARE(log.count("retry wifi connect..."), 1);
        QCOMPARE(screen.current(), "page_defalut");
    }

    // Four choices may wait at a time, the first one included; the last of them counts.
    void tapsMeanwhileTakeOver()
    {
        scanFinds({"Home", "Studio", "Guest"});
        Screen screen;
        MessageLog log;
        QList<int> rows{2, 0, 1, 2};
        screen.whileConnecting([&] {
            if (!rows.isEmpty())
                screen.tapRow(rows.takeFirst());
        });
        screen.tapRow(0);
        QCOMPARE(log.count("the tap is ignored"), 1);
        QCOMPARE(screen.states(), (QVariantList{0, 1, 0}));
        QCOMPARE(screen.passwordPages().size(), 4);
        QCOMPARE(visibleChild(screen.page, "label_title")->property("text").toString(), "Studio");
        screen.tapBack();
        QCOMPARE(screen.current(), "page_defalut");
    }

    void pageMayGoWhileConnecting_data()
    {
        addRows<Departure>({
            {"deleted", [](Screen &screen) { delete screen.page; }, 0},
            {"emptied", [](Screen &screen) { screen.page->empty(); }, 0},
            {"left and whole", [](Screen &screen) { screen.tapBack(); }, 1},
        });
    }

    void pageMayGoWhileConnecting()
    {
        QFETCH(Departure, row);
        scanFinds({"Home"});
        // The second time as the second half of a double tap, whose first half opened the page.
        for (const int doubleTapTime : {0, INT_MAX}) {
            Screen screen;
            screen.whileConnecting([&] { row.go(screen); });
            pressAt(&screen.window, screen.rowAt(0), doubleTapTime);
            releaseAt(&screen.window, screen.rowAt(0));
            QCOMPARE(screen.window.findChildren<passwordKeyboard *>().size(), row.passwordPages);
        }
    }

    void dragScrollsAndChoosesNothing()
    {
        scanFinds(QStringList(5, "Network"));
        Screen grown;
        QVERIFY(!visibleChild(grown.page, "scrollBar_networks"));
        grown.list->model()->insertRows(0, 3);
        const auto thumbOn = [](Screen &on) { return visibleChild(on.page, "scrollBar_networks"); };
        QTRY_VERIFY(thumbOn(grown));
        const QImage tall = thumbOn(grown)->grab().toImage();
        scanFinds(QStringList(500, "Network"));
        Screen screen;
        QWidget *thumb = thumbOn(screen);
        QVERIFY(thumb);
        QVERIFY(thumb->grab().toImage() != tall);
        grown.list->model()->insertRows(0, 492);
        QTRY_COMPARE(thumbOn(grown)->grab().toImage(), thumb->grab().toImage());
        QScrollBar *bar = screen.list->verticalScrollBar();
        drag(&screen.window, screen.rowAt(4), screen.rowAt(1));
        QTRY_VERIFY(bar->value() >= 240);
        QCOMPARE(thumb->property("value").toInt(), bar->value());
        QVERIFY(!screen.list->selectionModel()->hasSelection());
        // A fingertip rolls a little, and the list stays where it is.
        bar->setValue(8000);
        drag(&screen.window, screen.rowAt(2), screen.rowAt(2) + QPoint(6, 0));
        QCOMPARE(screen.states().indexOf(1), 102);
        QCOMPARE(bar->value(), 8000);
    }
};

ZELL_TEST_MAIN(TestWifiPages)
#include "test_wifi_pages.moc"
