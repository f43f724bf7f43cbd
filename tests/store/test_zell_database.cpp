#include "acquisition/GetData.h"
#include "store/StoreFile.h"
#include "store/ZellDatabase.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"

#include <QDir>
#include <QElapsedTimer>
#include <sys/stat.h>

class TestZellDatabase : public QObject
{
    Q_OBJECT

    static constexpr time_t noon = 1709956800; // 2024-03-09 12:00:00 in Shanghai
    static constexpr qint64 midnight = noon - 43200;
    static constexpr qint64 oldest = midnight - 518400;
    std::unique_ptr<ZellDatabase> database;

    struct Clock
    {
        const char *name;
        qint64 now, cutoff;
    };
    struct Shape
    {
        const char *name;
        void (*spoil)();
        const char *aside = "";
    };
    struct Refused
    {
        const char *name, *variable;
    };

    static QString read(const QString &statement,
                        const QSqlDatabase &connection = storeConnection())
    {
        QSqlQuery query(statement, connection);
        QStringList rows;
        while (query.next())
            rows << query.value(0).toString();
        return rows.join(' ');
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
                                 {"TempAndHum", 0, 45, "0/45"},
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

    void schedulersStopAtTheCeiling()
    {
        for (int i = 0; i < GETDATA_MAX_OBJECTS + 10; ++i)
            database->InsertDataBaseItem(noon + i, "TempAndHum", i, 0);
        QCOMPARE(GetData::objects().size(), GETDATA_MAX_OBJECTS);
        const GetData startedAnew;
        QCOMPARE(read("select count(*) from TempAndHum"), "42");
        QCOMPARE(read("select Time from TempAndHum where Temp = 5"), "2024-03-09 12:00:05");
        // Merged into the one file, which may be copied.
        database.reset();
        QCOMPARE(QDir().entryList(QDir::Files), QStringList{"ZellQt4.db"});
        QVERIFY(openStore("ZellQt4.db"));
        QCOMPARE(read("select count(*) from TempAndHum"), "42");
    }

    void noShapeEndsLogging_data()
    {
        static constexpr auto close = [] { closeStore(); };
        static constexpr auto dropTable = [] { read("drop table TempAndHum"); };
        static constexpr auto move = [] { QFile::rename("ZellQt4.db", "elsewhere.db"); };
        static constexpr auto remove = [] { QFile::remove("ZellQt4.db"); };
        static constexpr auto otherColumns = [] {
            read("drop table TempAndHum");
            read("create table TempAndHum (Temp int)");
            closeStore();
        };
        static constexpr auto view = [] {
            read("drop table TempAndHum");
            read("create view TempAndHum as select 1 UnixSec, '' Time, 2 Temp, 3 Hum");
            closeStore();
        };
        static constexpr auto folder = [] {
            remove();
            QDir().mkdir("ZellQt4.db");
        };
        static constexpr auto pipe = [] {
            remove();
            mkfifo("ZellQt4.db", 0600);
        };
        static constexpr auto journalFolder = [] {
            closeStore();
            QDir().mkpath("ZellQt4.db-journal/full");
        };
        static constexpr auto noDatabase = [] {
            closeStore();
            QFile::resize("ZellQt4.db", 3);
        };
        static constexpr auto torn = [] {
            read("insert into PM2_5 with recursive n(i) as (select 1 union all select i + 1 from n "
                 "where i < 1000) select i, '', 7 from n");
            closeStore();
            QFile::resize("ZellQt4.db", 5000);
        };
        static constexpr auto tenth = [] {
            for (int number = 1; number <= 9; ++number)
                QFile::copy("ZellQt4.db", QString("ZellQt4.db.damaged%1").arg(number));
            noDatabase();
        };
        addRows<Shape>({{"closed connection", close},
                        {"missing table", dropTable},
                        {"moved file", move},
                        {"removed file", remove},
                        {"other columns", otherColumns, "ZellQt4.db.damaged1"},
                        {"view", view, "ZellQt4.db.damaged1"},
                        {"folder", folder, "ZellQt4.db.damaged1"},
                        {"pipe", pipe, "ZellQt4.db.damaged1"},
                        {"folder as journal", journalFolder, "ZellQt4.db-journal.damaged1/full"},
                        {"no database", noDatabase, "ZellQt4.db.damaged1"},
                        {"torn", torn, "ZellQt4.db.damaged1"},
                        {"tenth damaged file", tenth, "ZellQt4.db.damaged9"}});
    }

    void noShapeEndsLogging()
    {
        QFETCH(Shape, row);
        row.spoil();
        const QByteArray spoilt =
            QFileInfo("ZellQt4.db").isFile() ? Environment::contentOf("ZellQt4.db") : QByteArray();
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
        QCOMPARE(log.count("set aside"), *row.aside == '\0' ? 0 : 1);
        if (*row.aside == '\0' || !QFileInfo(row.aside).isFile())
            return;
        QCOMPARE(Environment::contentOf(row.aside), spoilt);
    }

    void rowsWaitForTheStore_data()
    {
        addRows<Refused>({{"locked file", ""},
                          {"full card", "ZELL_CARD_FULL"},
                          {"read-only card", "ZELL_CARD_READ_ONLY"}});
    }

    void rowsWaitForTheStore()
    {
        QFETCH(Refused, row);
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
        for (int number = 1; number <= 10; ++number) {
            QElapsedTimer standstill;
            standstill.start();
            database->DeleteDataBaseTimeItem("TempAndHum", noon);
            database->InsertDataBaseItem(noon + number, "TempAndHum", number, 45);
            longest = std::max(longest, standstill.elapsed());
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
};

ZELL_TEST_MAIN(TestZellDatabase)
#include "test_zell_database.moc"
