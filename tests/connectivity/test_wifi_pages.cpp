#include "connectivity/SetWifiPage.h"
#include "connectivity/passwordKeyboard.h"
#include "connectivity/wifiConnectResult.h"
#include "pages/PagePattern.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/Touch.h"

#include <QDir>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTimer>

namespace {
void write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

// The scanner of this test: prints what scanFinds() was given.
void installScanner()
{
    const QString folder = Environment::deviceRoot() + "/scanner";
    write(folder + "/iwlist", "#!/bin/sh\necho \"$@\" > \"${0%/*}/arguments\"\n"
                              "cat \"${0%/*}/result\"\n");
    QFile::setPermissions(folder + "/iwlist", QFile::ReadOwner | QFile::ExeOwner);
    qputenv("PATH", QFile::encodeName(folder) + ':' + qgetenv("PATH"));
}

void scanFinds(const QList<QByteArray> &names)
{
    QByteArray result = "wlan1     Scan completed :\n";
    for (const QByteArray &name : names)
        result += QByteArray(20, ' ') + "ESSID:\"" + name + "\"\n";
    Environment::writeDeviceFile("/scanner/result", result);
}

// The page in the holder of a menu.
struct Screen
{
    Screen()
    {
        auto *holder = new QWidget;
        window.addWidget(new QWidget);
        window.addWidget(holder);
        window.resize(854, 480);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            qFatal("no window");
        page = openPage<SetWifiPage>(&window, &window, holder, &QWidget::update);
        list = page->findChild<QListView *>("listView");
    }

    QString state(int row) const
    {
        return list->model()->index(row, 0).data(Qt::CheckStateRole).toString();
    }
    QString name(int row) const { return list->model()->index(row, 0).data().toString(); }
    QPoint rowAt(int line) const { return {400, 80 + 80 * line + 40}; }
    QString current() const
    {
        return page->findChild<QStackedWidget *>("stackedWidget")->currentWidget()->objectName();
    }
    qsizetype passwordPages() const { return page->findChildren<passwordKeyboard *>().size(); }

    QStackedWidget window;
    QPointer<SetWifiPage> page;
    QListView *list;
};
} // namespace

class TestWifiPages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { installScanner(); }
    void init() { QDir().mkpath("../resource"); }
    void scanIsListed();
    void withoutAResultThereIsNoWifi();
    void workingDirectoryIsNotExecuted();
    void tapOpensThePasswordPage();
    void secondTapTakesOver();
    void pageMayGoWhileConnecting();
    void pageMayBeLeftWhileConnecting();
    void dragScrollsAndChoosesNothing();
    void resultPageShowsSuccess();
};

void TestWifiPages::scanIsListed()
{
    scanFinds({"Home", "", "it's \"mine\"", "Home"});
    MessageLog log;
    Screen screen;
    QFile arguments(Environment::deviceRoot() + "/scanner/arguments");
    QVERIFY(arguments.open(QIODevice::ReadOnly));
    QCOMPARE(arguments.readAll(), "wlan1 scanning\n");
    QCOMPARE(screen.list->model()->rowCount(), 4);
    QCOMPARE(screen.name(2), "it's \"mine\"");
    QVERIFY(visibleChild(screen.page, "scrollArea") && !visibleChild(screen.page, "label_noWifi"));
    QVERIFY(log.contains("strEverySSIDName \"Home\""));

    screen.page->onListWifiItemClicked({}, {});
    QCOMPARE(screen.passwordPages(), 0);
    screen.page->startTimer(1);
    QTRY_VERIFY(screen.list->model()->rowCount() > 4);
    QCOMPARE(screen.name(0), "A");
}

void TestWifiPages::withoutAResultThereIsNoWifi()
{
    scanFinds({});
    write("../resource/WiFi-SSID.txt", "the result of an earlier scan");
    MessageLog log;
    for (const bool folder : {true, false}) {
        if (!folder)
            QVERIFY(QDir("../resource").removeRecursively());
        Screen screen;
        for (const char *name : {"label_noWifi", "icon_noWifi", "info_noWifi"})
            QVERIFY(visibleChild(screen.page, name));
        QVERIFY(!visibleChild(screen.page, "listView") && !visibleChild(screen.page, "scrollArea"));
        QSignalSpy back(screen.page, &SetWifiPage::signal_backDefaultPage);
        tap(visibleChild(screen.page, "button_back"));
        QCOMPARE(back.count(), 1);
    }
    QCOMPARE(log.count("file zize =  0"), 2);
}

void TestWifiPages::workingDirectoryIsNotExecuted()
{
    scanFinds({"Home"});
    const QString home = QDir::currentPath();
    const QString directory = "a b;touch x'\"$(id)";
    QVERIFY(QDir().mkpath("place/" + directory) && QDir().mkpath("place/resource"));
    QDir::setCurrent("place/" + directory);
    {
        Screen screen;
        QCOMPARE(screen.name(0), "Home");
    }
    QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    QDir::setCurrent(home);
    QCOMPARE(QDir("place").entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             (QStringList{directory, "resource"}));
    QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("place"));
}

void TestWifiPages::tapOpensThePasswordPage()
{
    scanFinds({"Home", "Studio"});
    Screen screen;
    QString meanwhile;
    QTimer::singleShot(100, screen.page, [&] { meanwhile = screen.state(1) + screen.current(); });
    tapAt(&screen.window, screen.rowAt(1));
    QCOMPARE(meanwhile, "3page_defalut");
    QCOMPARE(screen.state(0) + screen.state(1), "01");
    QCOMPARE(screen.current(), "page_passwordKeyboard");

    auto *line = static_cast<QLineEdit *>(visibleChild(screen.page, "lineEdit"));
    tapAt(&screen.window, {68, 206});
    QCOMPARE(line->text(), "1");
    QCOMPARE(line->echoMode(), QLineEdit::Password);
    MessageLog log;
    tap(visibleChild(screen.page, "button_enter"));
    QVERIFY(log.contains("check password backstage..."));
    QCOMPARE(screen.current(), "page_defalut");

    // The same network once more: a fresh page above the old one, left by its arrow.
    tapAt(&screen.window, screen.rowAt(1));
    QCOMPARE(screen.passwordPages(), 2);
    QVERIFY(screen.page->findChildren<passwordKeyboard *>().last()->isVisible());
    tapAt(&screen.window, {40, 40});
    QCOMPARE(screen.current(), "page_defalut");
}

void TestWifiPages::secondTapTakesOver()
{
    scanFinds({"Home", "Studio", "Guest"});
    Screen screen;
    QTimer::singleShot(100, screen.page, [&] { tapAt(&screen.window, screen.rowAt(2)); });
    QTimer::singleShot(200, screen.page, [&] { tapAt(&screen.window, screen.rowAt(1)); });
    tapAt(&screen.window, screen.rowAt(0));
    QCOMPARE(screen.state(0) + screen.state(1) + screen.state(2), "010");
    QCOMPARE(screen.passwordPages(), 1);
}

void TestWifiPages::pageMayGoWhileConnecting()
{
    scanFinds({"Home"});
    Screen screen;
    QTimer::singleShot(100, screen.page, [&] { delete screen.page; });
    tapAt(&screen.window, screen.rowAt(0));
    QVERIFY(!screen.page);
}

void TestWifiPages::pageMayBeLeftWhileConnecting()
{
    scanFinds({"Home"});
    Screen screen;
    MessageLog log;
    QTimer::singleShot(100, screen.page, [&] { tapAt(&screen.window, {40, 40}); });
    tapAt(&screen.window, screen.rowAt(0));
    QCOMPARE(log.count("Timer Killed"), 1);
    QTRY_VERIFY(screen.page->findChildren<QWidget *>().isEmpty());
}

void TestWifiPages::dragScrollsAndChoosesNothing()
{
    scanFinds(QList<QByteArray>(500, "Network"));
    Screen screen;
    QScrollBar *bar = screen.list->verticalScrollBar();
    QCOMPARE(bar->maximum(), 500 * 80 - 400);
    drag(&screen.window, screen.rowAt(4), screen.rowAt(1));
    QTRY_VERIFY(bar->value() >= 240);
    QCOMPARE(screen.passwordPages(), 0);
    QVERIFY(!screen.list->selectionModel()->hasSelection());

    // A fingertip rolls a little, and the list stays where it is.
    bar->setValue(8000);
    pressAt(&screen.window, screen.rowAt(2));
    moveTo(&screen.window, screen.rowAt(2) + QPoint(6, 0));
    releaseAt(&screen.window, screen.rowAt(2) + QPoint(6, 0));
    QCOMPARE(screen.state(102), "1");
    QCOMPARE(bar->value(), 8000);
}

void TestWifiPages::resultPageShowsSuccess()
{
    QWidget window;
    window.resize(854, 480);
    passwordKeyboard page(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    page.jump_wifiConnectResult_page();
    QVERIFY(visibleChild(&page, "label_success") && visibleChild(&page, "label_infoSuccess"));
    for (const char *name :
         {"label_fail", "label_infoFail", "button_forgetFail", "button_retryFail"})
        QVERIFY(!visibleChild(&page, name));

    MessageLog log;
    tap(visibleChild(&page, "button_forgetSuccess"));
    page.findChild<QPushButton *>("button_forgetFail")->click();
    page.findChild<QPushButton *>("button_retryFail")->click();
    QCOMPARE(log.count("forget this wifi..."), 2);
    QCOMPARE(log.count("retry wifi connect..."), 1);
}

ZELL_TEST_MAIN(TestWifiPages)
#include "test_wifi_pages.moc"
