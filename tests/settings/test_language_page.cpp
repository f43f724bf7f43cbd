#include "settings/setLanguagePage.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/Touch.h"

#include <QDir>
#include <QTimer>

class TestLanguagePage : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QFile::remove("restarts");
        Environment::writeDeviceScript(script, "echo run >> restarts");
        page = std::make_unique<setLanguagePage>();
        page->show();
    }

    void choiceIsWrittenByteForByte()
    {
        const char *const contents[] = {"ZH_SIMPLE.qm", "ZH_COMPLEX.qm", "US.qm", ""};
        for (int row = 0; row < 4; ++row) {
            init();
            QFile::remove("language.txt");
            if (row < 3)
                tapAt(page.get(), {427, 160 + 80 * row + 40});
            leave();
            QCOMPARE(Environment::contentOf("language.txt"), contents[row]);
            QCOMPARE(Environment::contentOf("restarts"), "run\n");
            QVERIFY(!page->isVisible());
        }
    }

    void fileThatCannotBeWrittenDoesNotStopTheRestart()
    {
        QDir().mkdir("language.txt");
        tapAt(page.get(), {427, 200});
        leave();
        QCOMPARE(Environment::contentOf("restarts"), "run\n");
    }

    void failingScriptLeavesTheScreenAsItWas()
    {
        for (const char *commands : {"", "exit 1", "exec sleep 8"}) {
            init();
            Environment::writeDeviceScript(script, commands);
            if (*commands == '\0')
                QFile::remove(Environment::deviceRoot() + script);
            MessageLog log;
            // Leaves from within an event loop, which the closing of the last window would end.
            QTimer::singleShot(0, page.get(), [this] {
                leave();
                QTimer::singleShot(0, [] { QTimer::singleShot(0, [] { qApp->exit(1); }); });
            });
            QCOMPARE(QCoreApplication::exec(), 1);
            QVERIFY2(page->isVisible(), commands);
            QCOMPARE(log.lines().size(), 1);
        }
    }

private:
    void leave() { tap(page->findChild<QWidget *>("button_back")); }

    static constexpr const char *script = "/bin/restartZellQt.sh";
    std::unique_ptr<setLanguagePage> page;
};

ZELL_TEST_MAIN(TestLanguagePage)
#include "test_language_page.moc"
