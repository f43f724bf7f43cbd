#include "connectivity/CharacterButton.h"
#include "connectivity/KeyBorad.h"
#include "connectivity/KeyLayout.h"
#include "pages/Ground.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/Touch.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStackedWidget>

namespace {
// A page with a keyboard, as its hosts are built.
class Host : public QWidget
{
public:
    explicit Host(bool withLine = true)
    {
        resize(854, 480);
        fillGround(this);
        auto *container = new QFrame(this);
        container->resize(854, 480);
        if (withLine) {
            new QLineEdit("another line", this);
            line = new QLineEdit(this);
            line->setGeometry(71, 100, 712, 48);
        }
        keyboard = new KeyBorad(container);
        show();
        if (!QTest::qWaitForWindowExposed(this))
            qFatal("no window");
    }

    void tapKey(const char *name) { tap(visibleChild(this, name)); }

    CharacterButton *key(const QString &text) const
    {
        for (auto *candidate : findChildren<CharacterButton *>()) {
            if (candidate->isVisible() && candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }

    QLabel *enlarged() { return static_cast<QLabel *>(visibleChild(this, "label_enlarge")); }
    QString page() const
    {
        return keyboard->findChild<QStackedWidget *>()->currentWidget()->objectName();
    }

    QLineEdit *line = nullptr;
    KeyBorad *keyboard = nullptr;
};

// Unites what is painted on a widget.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent *>(event)->region();
        return false;
    }

    QRegion painted;
};
} // namespace

class TestKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void everyKeyTypesItsLabel();
    void rowsAbutAndAreCentred();
    void enlargedLabelFollowsTheFinger();
    void pressRepaintsOnlyWhatChanges();
    void pagesTakeTurns();
    void wideKeysEdit();
    void typingNeedsALine();
};

void TestKeyboard::everyKeyTypesItsLabel()
{
    const std::pair<const char *, QString> pages[] = {
        {"button_delete", "1234567890qwertyuiopasdfghjklzxcvbnm"},
        {"button_shiftNormal", "1234567890QWERTYUIOPASDFGHJKLZXCVBNM"},
        {"button_symbol", "~@#$%^&&_`|\\/*+-=()[]{}<>'\":;?!,."},
    };
    for (const auto &[way, typed] : pages) {
        Host host;
        host.tapKey(way);
        for (auto *key : host.findChildren<CharacterButton *>()) {
            if (key->isVisible())
                tap(key);
        }
        QCOMPARE(host.line->text(), typed);
        QCOMPARE(host.findChild<QLineEdit *>()->text(), "another line");
    }
}

void TestKeyboard::rowsAbutAndAreCentred()
{
    for (const KeyPage page : {KeyPage::Lowercase, KeyPage::Uppercase, KeyPage::Symbol}) {
        QMap<int, QRegion> rows;
        for (const KeyPlace &place : keyPlaces(page))
            rows[place.area.top()] += place.area;
        QCOMPARE(rows.keys(), (QList<int>{176, 236, 296, 356, 416}));
        for (const QRegion &row : std::as_const(rows)) {
            QCOMPARE(row.rectCount(), 1);
            QVERIFY(qAbs(row.boundingRect().center().x() - 426) <= 1);
        }
    }
}

void TestKeyboard::enlargedLabelFollowsTheFinger()
{
    Host host;
    const QRect first = host.key("1")->geometry();
    pressAt(&host, first.center());
    QVERIFY(host.enlarged());
    QCOMPARE(host.enlarged()->text(), "1");
    QCOMPARE(host.enlarged()->geometry(), QRect(first.x() - 2, 78, 88, 88));

    // Off the key and on again, without typing anything yet.
    moveTo(&host, {400, 40});
    QVERIFY(!host.enlarged());
    moveTo(&host, first.center());
    QVERIFY(host.enlarged() && host.line->text().isEmpty());
    releaseAt(&host, first.center());
    QVERIFY(!host.enlarged());
    QCOMPARE(host.line->text(), "1");

    // It goes with its page.
    pressAt(&host, first.center());
    host.hide();
    host.show();
    QVERIFY(!host.enlarged() && !host.key("1")->isDown());
    releaseAt(&host, first.center());
    QCOMPARE(host.line->text(), "1");
}

void TestKeyboard::pressRepaintsOnlyWhatChanges()
{
    Host host;
    const QRect key = host.key("g")->geometry();
    // Twice: the first press is the one that gives the enlarged label its style.
    for (int round = 0; round < 2; ++round) {
        QCoreApplication::processEvents();
        PaintWatch watch(&host);
        tapAt(&host, key.center());
        QTRY_VERIFY(watch.painted.intersects(host.line->geometry()));
        const QRect bubble(key.center().x() - 45, key.top() - 98, 90, 98);
        QVERIFY((watch.painted - key - bubble - host.line->geometry()).isEmpty());
    }
}

void TestKeyboard::pagesTakeTurns()
{
    Host host;
    auto *shift = host.findChild<QPushButton *>("button_shiftNormal");
    QCOMPARE(host.page(), "page_lowercase");
    host.tapKey("button_symbol");
    QCOMPARE(host.page(), "page_symbol");
    host.tapKey("button_character");
    QCOMPARE(host.page(), "page_lowercase");

    // Shift acts on press and stays; the symbols lead back to the case in use.
    pressAt(&host, shift->geometry().center());
    QCOMPARE(host.page(), "page_uppercase");
    releaseAt(&host, shift->geometry().center());
    QVERIFY(!shift->isDown());
    host.tapKey("button_symbol_2");
    host.tapKey("button_character");
    QCOMPARE(host.page(), "page_uppercase");
    host.tapKey("button_shiftChecked");
    QCOMPARE(host.page(), "page_lowercase");
}

void TestKeyboard::wideKeysEdit()
{
    Host host;
    QSignalSpy commit(host.keyboard, &KeyBorad::signal_commit);
    MessageLog log;
    host.tapKey("button_delete");
    QCOMPARE(host.line->text(), QString());
    tap(host.key("a"));
    host.tapKey("button_blank");
    tap(host.key("b"));
    host.line->setCursorPosition(0);
    host.tapKey("button_delete");
    host.tapKey("button_symbol");
    host.tapKey("button_blank_3");
    host.tapKey("button_enter_3");
    QCOMPARE(commit.takeFirst().first().toString(), "a  ");
    QVERIFY(log.contains("\"a  \""));
    for (int i = 0; i < 4; ++i)
        host.tapKey("button_delete_3");
    host.tapKey("button_enter_3");
    QCOMPARE(commit.takeFirst().first().toString(), QString());
}

void TestKeyboard::typingNeedsALine()
{
    MessageLog log;
    Host lineless(false);
    KeyBorad orphan(nullptr);
    QCOMPARE(log.count("keyboard without a line edit"), 2);
    QSignalSpy commit(lineless.keyboard, &KeyBorad::signal_commit);
    tap(lineless.key("a"));
    lineless.tapKey("button_delete");
    lineless.tapKey("button_enter");
    QCOMPARE(commit.count(), 1);

    Host host;
    delete host.line;
    tap(host.key("a"));
}

ZELL_TEST_MAIN(TestKeyboard)
#include "test_keyboard.moc"
