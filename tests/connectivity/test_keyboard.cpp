#include "connectivity/CharacterButton.h"
#include "connectivity/KeyBorad.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/Touch.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>

namespace {
// A page with a keyboard, as its hosts are built.
class Host : public QWidget
{
public:
    Host()
    {
        auto *container = new QFrame(this);
        container->resize(854, 480);
        commit = std::make_unique<QSignalSpy>(new KeyBorad(container), &KeyBorad::signal_commit);
        show();
    }

    // Taps wide keys by name and the others by text.
    void tapKeys(const QStringList &keys)
    {
        for (const QString &name : keys)
            tap(name.size() > 2 ? visibleChild(this, name) : key(name));
    }

    QAbstractButton *key(const QString &text) { return visibleButton(this, text); }
    QLabel *enlarged() { return static_cast<QLabel *>(visibleChild(this, "label_enlarge")); }
    QString committed() { return commit->takeFirst().first().toString(); }

    QLineEdit *anotherLine = new QLineEdit("another line", this);
    QLineEdit *line = new QLineEdit(this);
    std::unique_ptr<QSignalSpy> commit;
};
} // namespace

class TestKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void everyKeyTypesItsLabel()
    {
        Host host;
        const auto typedAfter = [&host](const QString &way) {
            host.line->clear();
            host.tapKeys({way});
            for (auto *key : host.findChildren<CharacterButton *>()) {
                if (key->isVisible())
                    tap(key);
            }
            return host.line->text();
        };
        QCOMPARE(typedAfter("button_delete"), "1234567890qwertyuiopasdfghjklzxcvbnm");
        QCOMPARE(typedAfter("button_shiftNormal"), "1234567890QWERTYUIOPASDFGHJKLZXCVBNM");
        QCOMPARE(typedAfter("button_symbol_2"), "~@#$%^&&_`|\\/*+-=()[]{}<>'\":;?!,.");
        QCOMPARE(host.anotherLine->text(), "another line");
        for (auto *key : host.findChildren<CharacterButton *>()) {
            QCOMPARE(key->minimumSize(), QSize(84, 60));
            QCOMPARE(key->maximumSize(), QSize(84, 60));
        }
    }

    void enlargedLabelFollowsTheFinger()
    {
        Host host;
        const QRect first = host.key("1")->geometry();
        pressAt(&host, first.center());
        QCOMPARE(host.enlarged()->text(), "1");
        QCOMPARE(host.enlarged()->geometry(), QRect(first.x() - 2, 78, 88, 88));
        // Off the key and on again.
        moveTo(&host, {400, 40});
        QVERIFY(!host.enlarged());
        moveTo(&host, first.center());
        QVERIFY(host.enlarged());
        releaseAt(&host, first.center());
        QVERIFY(!host.enlarged());
        // It goes with its page.
        pressAt(&host, first.center());
        host.hide();
        host.show();
        QVERIFY(!host.enlarged());
        QVERIFY(!host.key("1")->isDown());
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

        // Shift acts on press and stays; the symbols lead back to the case in use.
        const QPoint shift = host.findChild<QWidget *>("button_shiftNormal")->geometry().center();
        pressAt(&host, shift);
        QVERIFY(host.key("Q"));
        releaseAt(&host, shift);
        host.tapKeys({"button_symbol_2", "button_delete_3", "button_character"});
        host.tapKeys({"button_delete_2", "button_blank_2", "button_enter_2"});
        QCOMPARE(host.committed(), "a   ");
        host.tapKeys({"button_shiftChecked", "q"});
        QCOMPARE(host.line->text(), "a   q");
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
