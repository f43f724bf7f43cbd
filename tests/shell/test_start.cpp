#include "shell/Language.h"
#include "shell/MainWindow.h"
#include "testkit/Environment.h"

#include <QProcess>
#include <QStackedWidget>

class TestStart : public QObject
{
    Q_OBJECT

private slots:
    void lastLineOfTheLanguageFileDecides()
    {
        QCOMPARE(readLanguageFile("."), QString());
        const std::pair<QByteArray, QString> rows[] = {
            {"US.qm\r\n", "US.qm"},
            {"US.qm\nZH_SIMPLE.qm", "ZH_SIMPLE.qm"},
            {"US.qm\n\n", "ZH_COMPLEX.qm"},
            {QByteArray(10 << 20, 'x'), QString(65536, 'x')}};
        for (const auto &[content, name] : rows) {
            QFile file("language.txt");
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
            file.close();
            QCOMPARE(translationResource(readLanguageFile(".")), ":/resource/translation/" + name);
        }
    }

    // What must stand before the first screen is built: the database and the scheduler.
    void measurementSideFirst()
    {
        for (const char *known : {"not exist,need to create!", "exist!"}) {
            QProcess program;
            program.setProcessChannelMode(QProcess::MergedChannels);
            program.start(ZELL_PROGRAM, {});
            QByteArray output;
            QTRY_VERIFY((output += program.readAll()).contains("add Font:"));
            const QByteArray before = output.first(output.indexOf("add Font:"));
            const auto opened = before.lastIndexOf("DB is "); // once, by the first scheduler
            QVERIFY(opened >= 0 && opened == before.indexOf(QByteArray("DB is ") + known));
            program.terminate();
            QVERIFY(program.waitForFinished());
        }
    }

    void settingsSlideInTwice()
    {
        MainWindow window;
        QCOMPARE(window.size(), QSize(854, 480));
        window.show();
        auto *stack = window.findChild<QStackedWidget *>("stackedWidget");
        auto *page = window.findChild<QWidget *>("page_option");
        QMetaObject::invokeMethod(&window, "jump_toOption");
        QMetaObject::invokeMethod(&window, "jump_toOption");
        QVERIFY(page->isVisible() && page->x() == 854 && stack->currentIndex() == 1);
        QTRY_COMPARE(stack->currentIndex(), 2);
        QMetaObject::invokeMethod(window.findChild<QWidget *>("OptionPage"),
                                  "signal_back_lastPage");
        QVERIFY(!page->isVisible() && stack->currentIndex() == 1);
    }
};

ZELL_TEST_MAIN(TestStart)
#include "test_start.moc"
