#include "settings/setLanguagePage.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"
#include "tests/support/Touch.h"

#include <QDir>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>

class TestLanguagePage : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QFile::remove("language.txt");
        writeScript("echo run >> restarts");
        QFile::remove("restarts");
        page = std::make_unique<setLanguagePage>();
        page->show();
    }

    void choiceIsWrittenByteForByte_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("simplified") << 0 << QByteArray("ZH_SIMPLE.qm");
        QTest::newRow("traditional") << 1 << QByteArray("ZH_COMPLEX.qm");
        QTest::newRow("English") << 2 << QByteArray("US.qm");
        QTest::newRow("none") << -1 << QByteArray("as it was\n");
    }

    void choiceIsWrittenByteForByte()
    {
        QFETCH(int, row);
        QFile file("language.txt");
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("as it was\n") > 0);
        file.close();
        if (row >= 0)
            tapAt(page.get(), {427, 160 + 80 * row + 40});
        int backs = 0;
        connect(page.get(), &setLanguagePage::signal_backDefaultPage, page.get(), [&] { ++backs; });
        leave();
        QTEST(content("language.txt"), "content");
        QCOMPARE(content("restarts"), "run\n");
        QCOMPARE(backs, 1);
        QVERIFY(!page->isVisible());
    }

    void fileThatCannotBeWrittenDoesNotStopTheRestart()
    {
        QDir().mkdir("language.txt");
        tapAt(page.get(), {427, 200});
        leave();
        QCOMPARE(content("restarts"), "run\n");
        QDir().rmdir("language.txt");
    }

    void failingScriptLeavesTheScreenAsItWas_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::newRow("missing") << QByteArray();
        QTest::newRow("fails") << QByteArray("exit 1");
        QTest::newRow("hangs") << QByteArray("exec sleep 8");
    }

    void failingScriptLeavesTheScreenAsItWas()
    {
        QFETCH(QByteArray, script);
        writeScript(script);
        if (script.isEmpty())
            QFile::remove(Environment::deviceRoot() + "/bin/restartZellQt.sh");
        MessageLog log;
        // Leaves from within an event loop, which the closing of the last window would end.
        QTimer::singleShot(0, page.get(), [this] {
            leave();
            QTimer::singleShot(
                0, qApp, [] { QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(1); }); });
        });
        QCOMPARE(QCoreApplication::exec(), 1);
        QVERIFY(page->isVisible());
        QCOMPARE(log.count("restart script failed"), 1);
        QCOMPARE(log.lines().size(), 1);
    }

private:
    void leave() { tap(page->findChild<QPushButton *>("button_back")); }

    static QByteArray content(const QString &name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void writeScript(const QByteArray &script)
    {
        const QString path = "/bin/restartZellQt.sh";
        Environment::writeDeviceFile(path, "#!/bin/sh\n" + script + "\n");
        QFile::setPermissions(Environment::deviceRoot() + path,
                              QFile::ReadUser | QFile::WriteUser | QFile::ExeUser);
    }

    std::unique_ptr<setLanguagePage> page;
};

ZELL_TEST_MAIN(TestLanguagePage)
#include "test_language_page.moc"
