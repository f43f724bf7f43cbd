#include "shell/MainWindow.h"
#include "testkit/CallSlot.h"
#include "testkit/Environment.h"

#include <QProcess>
#include <QStackedWidget>

class TestStart : public QObject
{
    Q_OBJECT

private slots:
    // What must stand before the first screen is built: the database and the scheduler.
    void measurementSideFirst()
    {
        for (const char *known : {"DB is not exist,need to create!", "DB is exist!"}) {
            QProcess program;
            program.setProcessChannelMode(QProcess::MergedChannels);
            program.start(ZELL_PROGRAM, {});
            QByteArray output;
            QTRY_VERIFY((output += program.readAll()).contains("add Font:"));
            const QByteArray before = output.first(output.indexOf("add Font:"));
            QCOMPARE(before.count("DB is "), 1); // opened by the first scheduler
            QVERIFY(before.contains(known));
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
        window.jump_toOption();
        window.jump_toOption();
        QVERIFY(page->isVisible());
        QCOMPARE(page->x(), 854);
        QCOMPARE(stack->currentIndex(), 1);
        QTRY_COMPARE(stack->currentIndex(), 2);
        callSlot(window.findChild<QWidget *>("OptionPage"), "signal_back_lastPage");
        QVERIFY(!page->isVisible());
        QCOMPARE(stack->currentIndex(), 1);
    }
};

ZELL_TEST_MAIN(TestStart)
#include "test_start.moc"
