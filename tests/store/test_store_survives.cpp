#include "acquisition/GetData.h"
#include "store/ZellDatabase.h"
#include "testkit/Environment.h"
#include "testkit/TableRows.h"

#include <QDir>
#include <QRandomGenerator>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

class TestStoreSurvives : public QObject
{
    Q_OBJECT

    struct End
    {
        const char *name;
        bool isPowerCut;
    };

    static constexpr int endsPerFile = 100;
    static constexpr int never = 1000000000;
    QRandomGenerator random{1};
    int lastRow = 0;

    // A device that stores row after row and acknowledges each, until its process ends.
    [[noreturn]] static void storeRows(int acknowledgements, int row)
    {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        for (;;) {
            ZellDatabase database;
            zelldatabase = &database;
            // Then an orderly end, which has writes of its own.
            for (const int last = row + 5; row < last; ++row) {
                database.DeleteDataBaseTimeItem("TempAndHum", row);
                database.InsertDataBaseItem(row, "TempAndHum", row, 0);
                if (GetData::iLastUnixSec == row &&
                    write(acknowledgements, &row, sizeof row) != sizeof row)
                    _exit(1);
            }
        }
    }

    // Runs a device until it is killed. Which rows it has acknowledged.
    QList<int> runDevice(bool isPowerCut)
    {
        int ends[2];
        if (pipe(ends) != 0)
            qFatal("no pipe");
        // Both run on the simulated card, which is quick.
        qputenv("ZELL_CARD", QFile::encodeName(QDir::currentPath()));
        const int cut = isPowerCut ? random.bounded(1, 60) : never;
        qputenv("ZELL_CARD_CUT", QByteArray::number(cut));
        const pid_t device = fork();
        if (device == 0)
            storeRows(ends[1], lastRow + 1);
        qunsetenv("ZELL_CARD");
        ::close(ends[1]);
        QList<int> rows;
        for (int row = 0; read(ends[0], &row, sizeof row) == sizeof row;) {
            rows.append(row);
            if (!isPowerCut && random.bounded(4) == 0) {
                // Somewhere in one of the next rows.
                QThread::usleep(random.bounded(2000));
                kill(device, SIGKILL);
            }
        }
        ::close(ends[0]);
        int status = 0;
        waitpid(device, &status, 0);
        if (!WIFSIGNALED(status))
            qFatal("the device has ended by itself");
        return rows;
    }

private slots:
    void acknowledgedRowsAreThere_data() { addRows<End>({{"killed", false}, {"power cut", true}}); }

    void acknowledgedRowsAreThere()
    {
        QFETCH(End, row);
        const int wanted = qEnvironmentVariableIntValue("ZELL_STORE_ENDS");
        const int ends = std::max(wanted, 300);
        QSet<int> acknowledged;
        int rowCount = 0;
        for (int end = 0; end < ends; ++end) {
            if (end % endsPerFile == 0) {
                QFile::remove("ZellQt4.db");
                acknowledged.clear();
            }
            for (const int time : runDevice(row.isPowerCut)) {
                acknowledged.insert(time);
                ++rowCount;
            }
            {
                auto file = QSqlDatabase::addDatabase("QSQLITE", "after the end");
                file.setDatabaseName("ZellQt4.db");
                QVERIFY(file.open());
                QSqlQuery check("pragma integrity_check", file);
                QVERIFY(check.next());
                QCOMPARE(check.value(0).toString(), "ok");
                QSqlQuery rows("select UnixSec from TempAndHum", file);
                QSet<int> missing = acknowledged;
                while (rows.next()) {
                    lastRow = std::max(lastRow, rows.value(0).toInt());
                    missing.remove(rows.value(0).toInt());
                }
                QCOMPARE(missing, QSet<int>());
            }
            QSqlDatabase::removeDatabase("after the end");
        }
        qInfo("%d ends, %d rows acknowledged, none lost", ends, rowCount);
    }
};

ZELL_TEST_MAIN(TestStoreSurvives)
#include "test_store_survives.moc"
