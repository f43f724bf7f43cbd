#include "connectivity/CharacterButton.h"
#include "connectivity/KeyBorad.h"
#include "connectivity/KeyLayout.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/Touch.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStackedWidget>

namespace {
// A page with a keyboard, as its hosts are built.
class Host : public QWidget
{
public:
    Host()
        : line(new QLineEdit(this))
    {
        auto *container = new QFrame(this);
        container->resize(854, 480);
        keyboard = new KeyBorad(container);
        commit = std::make_unique<QSignalSpy>(keyboard, &KeyBorad::signal_commit);
        show();
    }

    // Taps wide keys by name and the others by text.
    void tapKeys(const QStringList &keys)
    {
        for (const QString &name : keys)
            tap(name.size() > 2 ? visibleChild(this, name) : key(name));
    }

    CharacterButton *key(const QString &text) const
    {
        for (auto *key : findChildren<CharacterButton *>()) {
            if (key->isVisible() && key->text() == text)
                return key;
        }
        return nullptr;
    }

    QLabel *enlarged() { return static_cast<QLabel *>(visibleChild(this, "label_enlarge")); }
    QString page() { return findChild<QStackedWidget *>()->currentWidget()->objectName(); }
    QString committed() { return commit->takeFirst().first().toString(); }

    QLineEdit *anotherLine = new QLineEdit("another line", this);
    QLineEdit *line;
    KeyBorad *keyboard;
    std::unique_ptr<QSignalSpy> commit;
};
} // namespace

class TestKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void everyKeyTypesItsLabel()
    {
        const std::tuple<KeyPage, QString, QString> pages[] = {
            {KeyPage::Lowercase, "button_delete", "1234567890qwertyuiopasdfghjklzxcvbnm"},
            {KeyPage::Uppercase, "button_shiftNormal", "1234567890QWERTYUIOPASDFGHJKLZXCVBNM"},
            {KeyPage::Symbol, "button_symbol", "~@#$%^&&_`|\\/*+-=()[]{}<>'\":;?!,."},
        };
        for (const auto &[page, way, typed] : pages) {
            Host host;
            host.tapKeys({way});
            for (auto *key : host.findChildren<CharacterButton *>()) {
                if (key->isVisible())
                    tap(key);
            }
            QCOMPARE(host.line->text() + host.anotherLine->text(), typed + "another line");

            QCOMPARE(host.key(typed.first(1))->minimumSize(), QSize(84, 60));
            QCOMPARE(host.key(typed.first(1))->maximumSize(), QSize(84, 60));
            // The keys of a row leave no gap, and the row stands in the middle.
            QMap<int, QRegion> rows;
            for (const KeyPlace &place : keyPlaces(page))
                rows[place.area.top()] += place.area;
            QCOMPARE(rows.keys(), (QList<int>{176, 236, 296, 356, 416}));
            for (const QRegion &row : std::as_const(rows))
                QVERIFY(row.rectCount() == 1 && qAbs(row.boundingRect().center().x() - 426) <= 1);
        }
    }

    void enlargedLabelFollowsTheFinger()
    {
        Host host;
        const QRect first = host.key("1")->geometry();
        pressAt(&host, first.center());
        QCOMPARE(host.enlarged()->text(), "1");
        QCOMPARE(host.enlarged()->geometry(), QRect(first.x() - 2, 78, 88, 88));
        // Off the key and on again, without typing anything yet.
        moveTo(&host, {400, 40});
        QVERIFY(!host.enlarged());
        moveTo(&host, first.center());
        QVERIFY(host.enlarged() && host.line->text().isEmpty());
        releaseAt(&host, first.center());
        QVERIFY(!host.enlarged());
        // It goes with its page.
        pressAt(&host, first.center());
        host.hide();
        host.show();
        QVERIFY(!host.enlarged() && !host.key("1")->isDown());
        releaseAt(&host, first.center());
        QCOMPARE(host.line->text(), "1");
    }

    void wideKeysEditAndSwitch()
    {
        Host host;
        MessageLog log;
        host.tapKeys({"button_delete", "a", "button_blank", "b"});
        host.line->setCursorPosition(0);
        host.tapKeys({"button_delete", "button_symbol", "button_blank_3", "&&", "button_enter_3"});
        QCOMPARE(host.committed(), "a  &&");
        QVERIFY(log.contains("\"a  &&\""));
        host.tapKeys({"button_character"});
        QCOMPARE(host.page(), "page_lowercase");

        // Shift acts on press and stays; the symbols lead back to the case in use.
        const QPoint shift = host.findChild<QWidget *>("button_shiftNormal")->geometry().center();
        pressAt(&host, shift);
        QCOMPARE(host.page(), "page_uppercase");
        releaseAt(&host, shift);
        host.tapKeys({"button_symbol_2", "button_delete_3", "button_character"});
        host.tapKeys({"button_delete_2", "button_blank_2", "button_enter_2"});
        QCOMPARE(host.committed(), "a   ");
        host.tapKeys({"button_shiftChecked"});
        QCOMPARE(host.page(), "page_lowercase");
    }

    void typingNeedsALine()
    {
        MessageLog log;
        const KeyBorad orphan(nullptr);
        QVERIFY(log.contains("keyboard without a line edit"));
        Host host;
        delete host.line;
        host.tapKeys({"a", "button_delete", "button_enter"});
        QCOMPARE(host.committed(), QString());
    }
};

ZELL_TEST_MAIN(TestKeyboard)
#include "test_keyboard.moc"
