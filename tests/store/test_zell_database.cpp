#include "acquisition/GetData.h"
#include "store/ZellDatabase.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"
#include "testkit/TableRows.h"

#include <QDeadlineTimer>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <csignal>
#include <sys/resource.h>

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
    struct Trouble
    {
        const char *name;
        bool isDiskFull;
    };
    struct Damage
    {
        const char *name, *aside;
        qint64 size;
    };

    static QString read(const QString &statement)
    {
        QSqlQuery query(statement);
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

    void cleanup() { QVERIFY(QFile::remove("ZellQt4.db")); }

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
        QVERIFY(QFile::remove("ZellQt4.db"));
        database->InsertDataBaseItem(noon, "TempAndHum", 7, 0);
        QCOMPARE(read("select Temp from TempAndHum"), "7");
    }

    void rowIsLostButNotTheNext_data()
    {
        addRows<Trouble>({{"locked file", false}, {"full disk", true}});
    }

    void rowIsLostButNotTheNext()
    {
        QFETCH(Trouble, row);
        auto other = QSqlDatabase::addDatabase("QSQLITE", "other program");
        other.setDatabaseName("ZellQt4.db");
        QVERIFY(other.open());
        rlimit room{};
        getrlimit(RLIMIT_FSIZE, &room);
        const rlimit none{0, room.rlim_max};
        signal(SIGXFSZ, SIG_IGN);
        other.exec(row.isDiskFull ? "" : "begin exclusive");
        setrlimit(RLIMIT_FSIZE, row.isDiskFull ? &none : &room);
        const MessageLog log;
        const QDeadlineTimer deadline(2000);
        database->DeleteDataBaseTimeItem("TempAndHum", noon);
        database->InsertDataBaseItem(noon, "TempAndHum", 23, 45);
        const bool isQuick = !deadline.hasExpired();
        setrlimit(RLIMIT_FSIZE, &room);
        other.exec("rollback");
        QVERIFY(isQuick);
        QCOMPARE(log.count("Insert fail!"), 1);
        QVERIFY(!log.contains("QSql"));
        database->InsertDataBaseItem(noon + 1, "TempAndHum", 23, 45);
        QCOMPARE(read("select Hum from TempAndHum"), "45");
    }

    void damagedFileIsSetAside_data()
    {
        addRows<Damage>(
            {{"no database", "ZellQt4.db.damaged1", 3}, {"torn", "ZellQt4.db.damaged2", 5000}});
    }

    void damagedFileIsSetAside()
    {
        QFETCH(Damage, row);
        read("insert into PM2_5 with recursive n(i) as (select 1 union all select i + 1 from n "
             "where i < 1000) select i, '', 7 from n");
        QVERIFY(QFile::resize("ZellQt4.db", row.size));
        const QByteArray damaged = Environment::contentOf("ZellQt4.db");
        const GetData startedAnew;
        database->InsertDataBaseItem(noon, "TempAndHum", 23, 45);
        database->DeleteDataBaseTimeItem("PM2_5", noon);
        database->InsertDataBaseItem(noon + 1, "PM2_5", 0, 35);
        QCOMPARE(read("select Temp || ' ' || PM2_5 from TempAndHum, PM2_5"), "23 35");
        QCOMPARE(Environment::contentOf(row.aside), damaged);
    }
};

ZELL_TEST_MAIN(TestZellDatabase)
#include "test_zell_database.moc"
