#include "acquisition/GetData.h"
#include "store/StoreFile.h"
#include "store/StoreRules.h"
#include "store/ZellDatabase.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

class TestZellDatabase : public QObject
{
    Q_OBJECT

    static constexpr time_t noon = 1709956800; // 2024-03-09 12:00:00 in Shanghai
    static constexpr qint64 midnight = noon - 43200;
    static constexpr qint64 oldest = midnight - 518400;
    static constexpr const char *first = "ZellQt4.db.damaged1";
    static constexpr int never = 1000000000;
    std::unique_ptr<ZellDatabase> database;
    QRandomGenerator random{1};

    struct Clock
    {
        const char *name;
        qint64 now, cutoff;
    };
    struct Shape
    {
        const char *name;
        bool (*spoil)();
        const char *aside = "";
        qint64 size = 0;
    };
    struct Fault
    {
        const char *name, *variable;
    };
    struct Others
    {
        const char *name, *connection = "";
        bool isReplaced = false;
    };

    static QString read(const QString &statement, const QSqlDatabase &from = storeConnection())
    {
        QSqlQuery query(statement, from);
        return query.next() ? query.value(0).toString() : QString();
    }

    // What others write: rows of any time, or of none, and changes of those that are there.
    QString otherStatement(time_t time)
    {
        static constexpr const char *statements[] = {
            "insert into TempAndHum (UnixSec, Temp) values (%1.5, 1), ('odd', 1), (null, 1)",
            "update TempAndHum set Temp = 1 - Temp where UnixSec = %1",
            "delete from TempAndHum where UnixSec >= %1",
            "drop table TempAndHum",
            "insert into TempAndHum (UnixSec, Temp) values (%1, 1)",
        };
        return QString(statements[random.bounded(5)])
            .arg(time + random.bounded(2) * random.bounded(-700000, 700000));
    }

    // Puts another file in place of the store's: its only row is to be dropped.
    static QString replaceFile(QSqlDatabase &others, time_t now)
    {
        QFile::remove("ZellQt4.db");
        others.open();
        for (const QString &statement : tableStatements())
            read(statement, others);
        return QString("insert into TempAndHum (UnixSec, Temp) values (%1, 1)").arg(now - 700000);
    }

    // As if each prune and each comparison read the whole table. Gives the time of the row stored
    // last.
    static time_t storePlainly(const QSqlDatabase &plain, time_t now, int value, time_t last)
    {
        const QString row = QString("select Temp from TempAndHum where UnixSec = %1").arg(last);
        read(QString("delete from TempAndHum where UnixSec <= %1").arg(retentionCutoff(now)),
             plain);
        if (read(row, plain) == QString::number(value))
            return last;
        read(QString("insert into TempAndHum values (%1, '', %2, 0)").arg(now).arg(value), plain);
        return now;
    }

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

    // Runs such a device until it is killed. The last row it has acknowledged, 0 if none.
    int runDevice(bool isPowerCut, int firstRow)
    {
        int ends[2];
        if (pipe(ends) != 0)
            qFatal("no pipe");
        // Both run on the simulated card, which is quick.
        const int cut = isPowerCut ? random.bounded(1, 60) : never;
        qputenv("ZELL_CARD", QFile::encodeName(QDir::currentPath()));
        qputenv("ZELL_CARD_CUT", QByteArray::number(cut));
        const pid_t device = fork();
        if (device == 0)
            storeRows(ends[1], firstRow);
        qunsetenv("ZELL_CARD_CUT");
        ::close(ends[1]);
        int last = 0;
        for (int row = 0; ::read(ends[0], &row, sizeof row) == sizeof row; last = row) {
            if (!isPowerCut && random.bounded(4) == 0) {
                // Somewhere in one of the next rows.
                QThread::usleep(random.bounded(2000));
                kill(device, SIGKILL);
            }
        }
        ::close(ends[0]);
        int status = 0;
        waitpid(device, &status, 0);
        return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL ? last : never;
    }

private slots:
    void init()
    {
        GetData::iLastUnixSec = 0;
        database = std::make_unique<ZellDatabase>();
        zelldatabase = database.get();
        const GetData scheduler;
    }

    void cleanup()
    {
        database.reset();
        QDir folder(QDir::currentPath());
        folder.removeRecursively();
        QVERIFY(folder.mkpath("."));
        QDir::setCurrent(folder.path());
    }

    void inserts()
    {
        struct Item
        {
            const char *table;
            int value, value2;
            const char *stored = "";
        };
        time_t time = noon;
        for (const Item &item : {Item{"TempAndHum", 0, 45, "0/45"},
                                 {"TempAndHum", 0, 45},
                                 {"TempAndHum", 0, 46, "0/46"},
                                 {"TempAndHum", 1, 46, "1/46"},
                                 {"PM2_5", 7, 35, "35"},
                                 {"PM2_5", 8, 35},
                                 {"TempAndHum", 0, 45, "0/45"},
                                 {"PM2_5", 8, 35, "35"},
                                 {"PM2_5_NoWiFi", 0, 1},
                                 {"TempAndHum_NoWiFi", 1, 2},
                                 {"Test", 1, 2}}) {
            const MessageLog log;
            database->InsertDataBaseItem(++time, item.table, item.value, item.value2);
            const QString row = QString("UnixSec = %1").arg(time);
            QCOMPARE(read("select PM2_5 from PM2_5 where " + row +
                          " union select Temp || '/' || Hum from TempAndHum where " + row),
                     item.stored);
            QCOMPARE(log.contains("Insert fail!"), *item.stored == '\0');
            QVERIFY(!log.contains("QSql"));
        }
    }

    void retention_data()
    {
        addRows<Clock>({{"first second of the day", midnight, oldest},
                        {"last second of the day", midnight + 86399, oldest},
                        {"clock never set", 20, 0}});
    }

    void retention()
    {
        QFETCH(Clock, row);
        for (const QString table : {"PM2_5", "TempAndHum", "PM2_5_NoWiFi"}) {
            for (const qint64 time : {row.cutoff, row.cutoff + 1, row.now})
                read(QString("insert into %1 (UnixSec) values (%2)").arg(table).arg(time));
            database->DeleteDataBaseTimeItem(table, long(row.now));
            QCOMPARE(read("select count(*) from " + table), table.endsWith("Fi") ? "3" : "2");
        }
    }

    void sameAsReadingTheWholeTable_data()
    {
        addRows<Others>({{"nobody else"},
                         {"another program", "others"},
                         {"another statement", QSqlDatabase::defaultConnection},
                         {"file replaced", "others", true}});
    }

    void sameAsReadingTheWholeTable()
    {
        QFETCH(Others, row);
        auto plain = QSqlDatabase::addDatabase("QSQLITE", "plain");
        plain.setDatabaseName(":memory:");
        auto others = QSqlDatabase::addDatabase("QSQLITE", "others");
        others.setDatabaseName("ZellQt4.db");
        QVERIFY(plain.open());
        read(tableStatements().at(3), plain);
        time_t now = noon, last = 0;
        database->DeleteDataBaseTimeItem("TempAndHum", now);
        for (int step = 0; step < 400; ++step) {
            QString statement;
            if (row.isReplaced && step % 20 == 0) {
                statement = replaceFile(others, now);
                read("delete from TempAndHum", plain);
            } else if (*row.connection && random.bounded(4) == 0) {
                statement = otherStatement(random.bounded(2) ? now : last);
            }
            read(statement, QSqlDatabase::database(row.connection));
            read(statement.replace("drop table", "delete from"), plain);
            database->openMeasurements();
            const int value = random.bounded(2);
            database->DeleteDataBaseTimeItem("TempAndHum", now);
            database->InsertDataBaseItem(now, "TempAndHum", value, 0);
            last = storePlainly(plain, now, value, last);
            const QString rows = "select group_concat(quote(UnixSec) || Temp) from TempAndHum";
            QCOMPARE(read(rows), read(rows, plain));
            // Another table's row is the last one then, one of a second that this table may have.
            if (step % 4 == 0)
                database->InsertDataBaseItem(last = now, "PM2_5", 0, step);
            now += random.bounded(8) ? random.bounded(4)
                                     : random.bounded(-16, 18) * (random.bounded(2) ? 1 : 40000);
        }
    }

    void schedulersStopAtTheCeiling()
    {
        for (int i = 0; i < GETDATA_MAX_OBJECTS + 10; ++i)
            database->InsertDataBaseItem(noon + i, "TempAndHum", i, 0);
        QCOMPARE(GetData::objects().size(), GETDATA_MAX_OBJECTS);
        QCOMPARE(read("select Time from TempAndHum where Temp = 5"), "2024-03-09 12:00:05");
        // Merged into the one file, which may be copied.
        database.reset();
        QCOMPARE(QDir().entryList(QDir::Files), QStringList{"ZellQt4.db"});
        QVERIFY(openStore("ZellQt4.db"));
        QCOMPARE(read("select count(*) from TempAndHum"), "42");
    }

    void noShapeEndsLogging_data()
    {
        static constexpr auto close = [] {
            closeStore();
            return true;
        };
        static constexpr auto cut = [](qint64 size) {
            return close() && QFile::resize("ZellQt4.db", size);
        };
        static constexpr auto manyRows =
            "insert into PM2_5 with recursive n(i) as (select 1 union all select i + 1 from n "
            "limit 1000) select i, '', 7 from n";
        static constexpr auto isDone = [](const char *statement) {
            return read(statement).isEmpty();
        };
        addRows<Shape>(
            {{"closed connection", close},
             {"missing table", [] { return isDone("drop table TempAndHum"); }},
             {"moved file", [] { return QFile::rename("ZellQt4.db", "elsewhere.db"); }},
             {"removed file", [] { return QFile::remove("ZellQt4.db"); }},
             {"other columns", [] { return isDone("alter table TempAndHum drop column Hum"); },
              first, 4096},
             {"view",
              [] {
                  return isDone("alter table TempAndHum rename to Old") &&
                         isDone("create view TempAndHum as select * from Old");
              },
              first, 4096},
             {"folder", [] { return QFile::remove("ZellQt4.db") && QDir().mkdir("ZellQt4.db"); },
              first},
             {"pipe", [] { return QFile::remove("ZellQt4.db") && mkfifo("ZellQt4.db", 0600) == 0; },
              first},
             {"folder as journal",
              [] { return close() && QDir().mkpath("ZellQt4.db-journal/full"); },
              "ZellQt4.db-journal.damaged1/full"},
             {"no database", [] { return cut(3); }, first, 3},
             {"torn", [] { return isDone(manyRows) && cut(5000); }, first, 5000},
             {"tenth damaged file",
              [] {
                  for (int number = 1; number <= 9; ++number)
                      QFile::copy("ZellQt4.db", QString("ZellQt4.db.damaged%1").arg(number));
                  return cut(3);
              },
              "ZellQt4.db.damaged9", 3}});
    }

    void noShapeEndsLogging()
    {
        QFETCH(Shape, row);
        QVERIFY(row.spoil());
        const bool isUsable = *row.aside == '\0';
        const MessageLog log;
        database->DeleteDataBaseTimeItem("TempAndHum", noon);
        database->InsertDataBaseItem(noon, "TempAndHum", 23, 45);
        database->InsertDataBaseItem(noon + 1, "PM2_5", 0, 35);
        // What lies there now, not what the connection may still hold.
        closeStore();
        QVERIFY(openStore("ZellQt4.db"));
        QCOMPARE(read("select Temp || ' ' || PM2_5 from TempAndHum, PM2_5"), "23 35");
        QVERIFY(!log.contains("Insert fail!"));
        QVERIFY(!log.contains("QSql"));
        QCOMPARE(log.count("set aside"), isUsable ? 0 : 1);
        QVERIFY(isUsable || QFileInfo::exists(row.aside));
        QVERIFY(QFileInfo(row.aside).size() >= row.size);
    }

    void rowsWaitForTheStore_data()
    {
        addRows<Fault>({{"locked file", ""},
                        {"full card", "ZELL_CARD_FULL"},
                        {"read-only card", "ZELL_CARD_READ_ONLY"}});
    }

    void rowsWaitForTheStore()
    {
        QFETCH(Fault, row);
        auto other = QSqlDatabase::addDatabase("QSQLITE", "other program");
        other.setDatabaseName("ZellQt4.db");
        QVERIFY(other.open());
        // As when the program starts on such a card.
        closeStore();
        if (*row.variable == '\0') {
            // Keeps readers out, too.
            read("pragma locking_mode = exclusive", other);
            read("begin exclusive", other);
        }
        qputenv("ZELL_CARD", QFile::encodeName(QDir::currentPath()));
        qputenv(row.variable, "/");
        const MessageLog log;
        qint64 longest = 0;
        QElapsedTimer standstill;
        standstill.start();
        for (int number = 1; number <= 10; ++number) {
            database->DeleteDataBaseTimeItem("TempAndHum", noon);
            database->InsertDataBaseItem(noon + number, "TempAndHum", number, 45);
            longest = std::max(longest, standstill.restart());
        }
        QCOMPARE(log.count("Insert fail!"), 10);
        QCOMPARE(log.count("DB takes no rows"), 1);
        QVERIFY2(longest < 300, qPrintable(QString("%1 ms").arg(longest)));
        qunsetenv(row.variable);
        other.close();
        QTRY_VERIFY_WITH_TIMEOUT(log.contains("DB takes rows again, lost meanwhile: 2"), 1500);
        QCOMPARE(read("select count(*) || ' ' || min(Temp) from TempAndHum"), "8 3");
        QVERIFY(!log.contains("QSql"));
    }

    void acknowledgedRowsAreThere_data()
    {
        addRows<Fault>({{"killed", ""}, {"power cut", "ZELL_CARD_CUT"}});
    }

    void acknowledgedRowsAreThere()
    {
        QFETCH(Fault, row);
        const int ends = std::max(300, qEnvironmentVariableIntValue("ZELL_STORE_ENDS"));
        int rowCount = 0;
        database.reset();
        for (int end = 0; end < ends; ++end) {
            // Now and then a new file, so that looking at it stays quick.
            if (end % 100 == 0 && QFile::remove("ZellQt4.db"))
                rowCount = 0;
            const int acknowledged = runDevice(*row.variable != '\0', rowCount + 1);
            QVERIFY(openStore("ZellQt4.db"));
            QCOMPARE(read("pragma integrity_check"), "ok");
            rowCount = read("select count(*) from TempAndHum").toInt();
            // All numbers from 1 on: a row that was lost earlier would be a gap.
            QCOMPARE(read("select ifnull(max(UnixSec), 0) from TempAndHum").toInt(), rowCount);
            QVERIFY(acknowledged <= rowCount);
            closeStore();
        }
    }
};

ZELL_TEST_MAIN(TestZellDatabase)
#include "test_zell_database.moc"
