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
            new QLineEdit(QStringLiteral("another line"), this);
            line = new QLineEdit(this);
            line->setGeometry(71, 100, 712, 48);
        }
        keyboard = new KeyBorad(container);
        show();
        if (!QTest::qWaitForWindowExposed(this))
            qFatal("no window");
    }

    void tapKey(const char *name) { tap(visibleChild(this, QLatin1String(name))); }

    CharacterButton *key(const QString &text) const
    {
        for (auto *candidate : findChildren<CharacterButton *>()) {
            if (candidate->isVisible() && candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }

    QLabel *enlarged() const
    {
        return static_cast<QLabel *>(
            visibleChild(const_cast<Host *>(this), QStringLiteral("label_enlarge")));
    }

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
    void everyKeyTypesItsLabel_data();
    void everyKeyTypesItsLabel();
    void rowsAbutAndAreCentred();
    void enlargedLabelFollowsTheFinger();
    void enlargedLabelGoesWithItsKey();
    void pressRepaintsOnlyWhatChanges();
    void symbolsLeadBackToTheCaseInUse();
    void shiftActsOnPress();
    void wideKeysEdit();
    void deleteKeyIsLitWhilePressed();
    void typingNeedsALine();
};

void TestKeyboard::everyKeyTypesItsLabel_data()
{
    QTest::addColumn<QStringList>("way");
    QTest::addColumn<QString>("typed");
    QTest::newRow("small") << QStringList() << "1234567890qwertyuiopasdfghjklzxcvbnm";
    QTest::newRow("capital") << QStringList{"button_shiftNormal"}
                             << "1234567890QWERTYUIOPASDFGHJKLZXCVBNM";
    QTest::newRow("symbols") << QStringList{"button_symbol"}
                             << "~@#$%^&&_`|\\/*+-=()[]{}<>'\":;?!,.";
}

void TestKeyboard::everyKeyTypesItsLabel()
{
    QFETCH(QStringList, way);
    QFETCH(QString, typed);
    Host host;
    for (const QString &name : way)
        host.tapKey(qPrintable(name));
    for (auto *key : host.findChildren<CharacterButton *>()) {
        if (key->isVisible())
            tap(key);
    }
    QCOMPARE(host.line->text(), typed);
    QCOMPARE(host.findChild<QLineEdit *>()->text(), QStringLiteral("another line"));
}

void TestKeyboard::rowsAbutAndAreCentred()
{
    for (const KeyPage page : {KeyPage::Lowercase, KeyPage::Uppercase, KeyPage::Symbol}) {
        QMap<int, QList<QRect>> rows;
        for (const KeyPlace &place : keyPlaces(page))
            rows[place.area.top()].append(place.area);
        QCOMPARE(rows.keys(), (QList<int>{176, 236, 296, 356, 416}));
        for (const QList<QRect> &row : std::as_const(rows)) {
            for (qsizetype i = 1; i < row.size(); ++i)
                QCOMPARE(row[i].left(), row[i - 1].right() + 1);
            QVERIFY(qAbs(row.first().left() + row.last().right() + 1 - 854) <= 1);
        }
    }
}

void TestKeyboard::enlargedLabelFollowsTheFinger()
{
    Host host;
    const CharacterButton *first = host.key(QStringLiteral("1"));
    pressAt(&host, first->geometry().center());
    QVERIFY(host.enlarged());
    QCOMPARE(host.enlarged()->text(), QStringLiteral("1"));
    QCOMPARE(host.enlarged()->geometry(), QRect(first->x() - 2, 78, 88, 88));

    // Off the key and on again, without typing anything yet.
    moveTo(&host, {400, 40});
    QVERIFY(!host.enlarged());
    moveTo(&host, first->geometry().center());
    QVERIFY(host.enlarged());
    QCOMPARE(host.line->text(), QString());
    releaseAt(&host, first->geometry().center());
    QVERIFY(!host.enlarged());
    QCOMPARE(host.line->text(), QStringLiteral("1"));
}

void TestKeyboard::enlargedLabelGoesWithItsKey()
{
    Host host;
    const QPoint finger = host.key(QStringLiteral("g"))->geometry().center();
    pressAt(&host, finger);
    host.hide();
    host.show();
    QVERIFY(!host.enlarged());
    QVERIFY(!host.key(QStringLiteral("g"))->isDown());
    releaseAt(&host, finger);
    QCOMPARE(host.line->text(), QString());
}

void TestKeyboard::pressRepaintsOnlyWhatChanges()
{
    Host host;
    const QRect key = host.key(QStringLiteral("g"))->geometry();
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

void TestKeyboard::symbolsLeadBackToTheCaseInUse()
{
    Host host;
    QCOMPARE(host.page(), QStringLiteral("page_lowercase"));
    host.tapKey("button_symbol");
    QCOMPARE(host.page(), QStringLiteral("page_symbol"));
    host.tapKey("button_character");
    QCOMPARE(host.page(), QStringLiteral("page_lowercase"));
    host.tapKey("button_shiftNormal");
    host.tapKey("button_symbol_2");
    host.tapKey("button_character");
    QCOMPARE(host.page(), QStringLiteral("page_uppercase"));
}

void TestKeyboard::shiftActsOnPress()
{
    Host host;
    auto *shift = host.findChild<QPushButton *>(QStringLiteral("button_shiftNormal"));
    const QPoint finger = shift->geometry().center();
    pressAt(&host, finger);
    QCOMPARE(host.page(), QStringLiteral("page_uppercase"));
    releaseAt(&host, finger);
    QCOMPARE(host.page(), QStringLiteral("page_uppercase"));
    QVERIFY(!shift->isDown());
    tapAt(&host, finger);
    QCOMPARE(host.page(), QStringLiteral("page_lowercase"));
}

void TestKeyboard::wideKeysEdit()
{
    Host host;
    QSignalSpy commit(host.keyboard, &KeyBorad::signal_commit);
    MessageLog log;
    host.tapKey("button_delete");
    QCOMPARE(host.line->text(), QString());
    tap(host.key(QStringLiteral("a")));
    host.tapKey("button_blank");
    tap(host.key(QStringLiteral("b")));
    host.line->setCursorPosition(0);
    host.tapKey("button_delete");
    host.tapKey("button_symbol");
    host.tapKey("button_blank_3");
    host.tapKey("button_enter_3");
    QCOMPARE(commit.takeFirst().first().toString(), QStringLiteral("a  "));
    QVERIFY(log.contains(QStringLiteral("\"a  \"")));
    for (int i = 0; i < 4; ++i)
        host.tapKey("button_delete_3");
    host.tapKey("button_enter_3");
    QCOMPARE(commit.takeFirst().first().toString(), QString());
}

void TestKeyboard::deleteKeyIsLitWhilePressed()
{
    Host host;
    auto *key = host.findChild<QPushButton *>(QStringLiteral("button_delete"));
    auto *other = host.findChild<QPushButton *>(QStringLiteral("button_delete_3"));
    const qint64 resting = other->icon().cacheKey();
    pressAt(&host, key->geometry().center());
    QVERIFY(other->icon().cacheKey() != resting);
    releaseAt(&host, key->geometry().center());
    QCOMPARE(other->icon().cacheKey(), resting);
}

void TestKeyboard::typingNeedsALine()
{
    MessageLog log;
    Host lineless(false);
    KeyBorad orphan(nullptr);
    QCOMPARE(log.count(QStringLiteral("keyboard without a line edit")), 2);
    QSignalSpy commit(lineless.keyboard, &KeyBorad::signal_commit);
    tap(lineless.key(QStringLiteral("a")));
    lineless.tapKey("button_delete");
    lineless.tapKey("button_enter");
    QCOMPARE(commit.count(), 1);

    Host host;
    delete host.line;
    tap(host.key(QStringLiteral("a")));
}

ZELL_TEST_MAIN(TestKeyboard)
#include "test_keyboard.moc"
