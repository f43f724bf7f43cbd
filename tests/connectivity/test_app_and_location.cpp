#include "connectivity/connectApp.h"
#include "connectivity/locationResult.h"
#include "connectivity/setLocation.h"
#include "connectivity/tryConnectApp.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/Touch.h"

#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <zbar.h>

namespace {
// What a phone reads in @p picture, whose width is a multiple of four.
QStringList codesIn(QImage picture)
{
    picture.convertTo(QImage::Format_Grayscale8);
    zbar::Image seen(unsigned(picture.width()), unsigned(picture.height()), "Y800",
                     picture.constBits(), std::size_t(picture.sizeInBytes()));
    zbar::ImageScanner scanner;
    scanner.scan(seen);
    QStringList texts;
    for (auto code = seen.symbol_begin(); code != seen.symbol_end(); ++code)
        texts.append(QString::fromStdString(code->get_data()));
    texts.sort();
    return texts;
}
} // namespace

class TestAppAndLocation : public QObject
{
    Q_OBJECT

private slots:
    void appPagePairsByANumber()
    {
        auto *app = open<connectApp>();
        QSignalSpy left(app, &connectApp::signal_backDefaultPage);
        MessageLog log;
        tap(on("button_connectApp"));
        for (int i = 0; i < 4; ++i) {
            const auto *label = page->findChild<QLabel *>(QString("label_num%1").arg(i + 1));
            QVERIFY(label->text().at(0).isDigit());
            const QString told = QString("generate random number[%1] ...is %2").arg(i);
            QVERIFY(log.contains(told.arg(label->text())));
        }
        // The back button of the number is bound twice.
        tap(on("button_back"));
        QCOMPARE(left.count(), 2);
        app->jump_disconnectApp_page();
        tap(on("button_cancel"));
        QCOMPARE(left.count(), 3);
        open<tryConnectApp>()->check_connect_result();
        QVERIFY(on("label_background"));
    }

    // Six code words of each code are damaged, of the eight that can be mended: no more than two
    // can have been wrong before.
    void codesAreReadFromThePage()
    {
        open<connectApp>();
        const QString host = on("label_left3")->property("text").toString().toUpper();
        const QStringList addresses{"HTTP://" + host + "/ANDROID", "HTTP://" + host + "/IOS"};
        QImage picture = page->grab({0, 0, 852, 480}).toImage();
        QPainter painter(&picture);
        painter.setCompositionMode(QPainter::CompositionMode_Difference);
        for (const char *name : {"button_appStore", "button_googlePlay"}) {
            QRect code(0, 0, 132, 132);
            code.moveCenter(on(name)->mapTo(page.get(), on(name)->rect().center()));
            const QImage modules = picture.copy(code).scaled(33, 33);
            QCOMPARE(modules.scaled(132, 132), picture.copy(code));
            painter.fillRect(QRect(code.topLeft() + QPoint(100, 52), QSize(16, 48)), Qt::white);
        }
        painter.end();
        QCOMPARE(codesIn(picture), addresses);
    }

    void typedPlaceIsClearedAndDropped()
    {
        QSignalSpy left(open<setLocation>(), &setLocation::signal_backDefaultPage);
        MessageLog log;
        tapAt(page.get(), {300, 160}); // a row reacts everywhere
        QVERIFY(log.contains("set network locate"));
        tapAt(page.get(), {300, 316});
        tap(visibleButton(page.get(), "b"));
        tapAt(page.get(), {759, 126}); // by its place: a key has the name of the button, too
        QCOMPARE(on("lineEdit")->property("text").toString(), "");
        tap(visibleButton(page.get(), "b"));

        tap(on("button_enter"));
        tap(on("button_deleteLocation"));
        QVERIFY(!on("listWidget"));

        // Back to what was typed; a further search stands on a fresh list.
        tap(on("button_back"));
        QCOMPARE(on("lineEdit")->property("text").toString(), "b");
        tap(on("button_enter"));
        QVERIFY(on("listWidget"));
        tap(on("button_back"));
        tap(on("button_back"));
        QCOMPARE(left.count(), 1);
    }

    void resultsFollowTheFinger()
    {
        auto *result = open<locationResult>();
        const auto *list = static_cast<QListWidget *>(on("listWidget"));
        const QScrollBar *bar = list->verticalScrollBar();
        QCOMPARE(bar->maximum(), 7 * 80 - 320);
        // Shown again after the line was cleared, the list is longer and scrolls as before.
        result->delete_searchLocation();
        result->show_locate_result();
        QVERIFY(!on("label_noResult"));
        QTRY_COMPARE(bar->maximum(), 14 * 80 - 320);
        drag(page.get(), {400, 400}, {400, 340}, 1);
        QTRY_COMPARE(bar->value(), 60);
        QCOMPARE(on("scrollBar_result")->property("value").toInt(), 60);
        QVERIFY(list->selectedItems().isEmpty());
    }

private:
    template <class Page>
    Page *open()
    {
        page = std::make_unique<Page>();
        page->show();
        return static_cast<Page *>(page.get());
    }
    QWidget *on(const char *name) { return visibleChild(page.get(), name); }

    std::unique_ptr<QWidget> page;
};

ZELL_TEST_MAIN(TestAppAndLocation)
#include "test_app_and_location.moc"
