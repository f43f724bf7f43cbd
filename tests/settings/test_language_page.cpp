#include "pages/Language.h"
#include "settings/Restart.h"
#include "settings/setLanguagePage.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"
#include "testkit/Touch.h"

#include <QTimer>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace std::chrono_literals;

class TestLanguagePage : public QObject
{
    Q_OBJECT

    struct Choice
    {
        const char *name, *written;
        int row;
    };
    struct Script
    {
        const char *name, *commands;
    };
    struct Stored
    {
        const char *name;
        QByteArray content;
        QString translationFile;
    };

private slots:
    void init()
    {
        QFile::remove(restart);
        QFile::remove("language.txt");
        page = std::make_unique<setLanguagePage>();
        page->show();
    }

    void choiceIsWrittenByteForByte_data()
    {
        addRows<Choice>({{"simplified Chinese", "ZH_SIMPLE.qm", 0},
                         {"traditional Chinese", "ZH_COMPLEX.qm", 1},
                         {"English", "US.qm", 2},
                         {"none", "", 3}});
    }

    void choiceIsWrittenByteForByte()
    {
        QFETCH(Choice, row);
        choose(row.row);
        leave();
        QCOMPARE(Environment::contentOf("language.txt"), row.written);
        QVERIFY(QFile::exists(restart));
        QVERIFY(!page->isVisible());
    }

    void fullDiskKeepsTheLanguageAndStopsNoRestart()
    {
        Language("US.qm").store();
        choose(0);
        rlimit room{};
        getrlimit(RLIMIT_FSIZE, &room);
        const rlimit none{0, room.rlim_max};
        signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &none);
        leave();
        setrlimit(RLIMIT_FSIZE, &room);
        QCOMPARE(Environment::contentOf("language.txt"), "US.qm");
        QVERIFY(QFile::exists(restart));
    }

    void lastLineOfTheFileDecides_data()
    {
        addRows<Stored>({{"no file", {}, "ZH_COMPLEX.qm"},
                         {"foreign line end", "US.qm\r\n", "US.qm"},
                         {"two lines", "US.qm\nZH_SIMPLE.qm", "ZH_SIMPLE.qm"},
                         {"empty last line", "US.qm\n\n", "ZH_COMPLEX.qm"},
                         {"ten megabytes", QByteArray(10 << 20, 'x'), QString(65536, 'x')}});
    }

    void lastLineOfTheFileDecides()
    {
        QFETCH(Stored, row);
        if (!row.content.isNull())
            QVERIFY(simulator::replaceFile("language.txt", row.content));
        QCOMPARE(Language::stored().resource(), ":/resource/translation/" + row.translationFile);
    }

    void pipeIsNoLanguageFile()
    {
        QCOMPARE(mkfifo("language.txt", 0600), 0);
        QCOMPARE(Language::stored().translationFile(), "");
        Language("US.qm").store();
        QCOMPARE(Environment::contentOf("language.txt"), "US.qm");
    }

    void failingScriptLeavesTheScreenAsItWas_data()
    {
        addRows<Script>({{"fails", "exit 1"}, {"hangs", "sleep 1"}});
    }

    // The last test: it leaves a script of its own.
    void failingScriptLeavesTheScreenAsItWas()
    {
        QFETCH(Script, row);
        Environment::writeDeviceScript("/bin/restartZellQt.sh", row.commands);
        MessageLog log;
        // Restarts from within an event loop, which the closing of the last window would end.
        QTimer::singleShot(0, page.get(), [] {
            restartProgram(200ms);
            QTimer::singleShot(0, [] { QTimer::singleShot(0, [] { qApp->exit(1); }); });
        });
        QCOMPARE(QCoreApplication::exec(), 1);
        QVERIFY(page->isVisible());
        QCOMPARE(log.lines().size(), 1);
    }

private:
    void choose(int row) { tapAt(page.get(), {427, 160 + 80 * row + 40}); }
    void leave() { tap(page->findChild<QWidget *>("button_back")); }

    const QString restart = Environment::device().restartRequest();
    std::unique_ptr<setLanguagePage> page;
};

ZELL_TEST_MAIN(TestLanguagePage)
#include "test_language_page.moc"
