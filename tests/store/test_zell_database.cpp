#include "acquisition/GetData.h"
#include "shell/Global_cfg.h"
#include "store/ZellDatabase.h"
#include "testkit/Environment.h"
#include "testkit/MessageLog.h"

#include <QDeadlineTimer>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <csignal>
#include <sys/resource.h>

class TestZellDatabase : public QObject
{
    Q_OBJECT

    static constexpr time_t noon = 1709956800; // 2024-03-09 12:00:00 in Shanghai
    std::unique_ptr<ZellDatabase> database;

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
        const QString items = "TempAndHum/0/45 TempAndHum/0/45 TempAndHum/0/46 TempAndHum/1/46 "
                              "TempAndHum/0/45 PM2_5/7/35 PM2_5/8/35 TempAndHum/0/45 PM2_5/8/35 "
                              "PM2_5_NoWiFi/0/1 TempAndHum_NoWiFi/1/2 Test/1/2";
        const MessageLog log;
        time_t time = noon;
        for (const QString &item : items.split(' ')) {
            const QStringList parts = item.split('/');
            database->InsertDataBaseItem(++time, parts[0], parts[1].toInt(), parts[2].toInt());
        }
        QCOMPARE(read("select substr(Time, 18) || '/' || PM2_5 from PM2_5 union select "
                      "substr(Time, 18) || '/' || Temp || '/' || Hum from TempAndHum"),
                 "01/0/45 03/0/46 04/1/46 05/0/45 06/35 08/0/45 09/35");
        QVERIFY(log.count("Insert fail!") == 5 && !log.contains("QSql"));
    }

    void retention()
    {
        const qint64 midnight = noon - 43200;
        const qint64 oldest = midnight - 518400;
        const std::map<qint64, qint64> cutoffs{
            {midnight, oldest}, {midnight + 86399, oldest}, {20, 0}};
        for (const auto &[now, cutoff] : cutoffs) {
            for (const QString table : {"PM2_5", "TempAndHum", "PM2_5_NoWiFi"}) {
                read("delete from " + table);
                for (const qint64 time : {cutoff, cutoff + 1, now})
                    read(QString("insert into %1 (UnixSec) values (%2)").arg(table).arg(time));
                database->DeleteDataBaseTimeItem(table, long(now));
                QCOMPARE(read("select count(*) from " + table), table.endsWith("Fi") ? "3" : "2");
            }
        }
    }

    void schedulersStopAtTheCeiling()
    {
        for (int i = 0; i < GETDATA_MAX_OBJECTS + 10; ++i)
            database->InsertDataBaseItem(noon + i, "TempAndHum", i, 0);
        QCOMPARE(GetData::objects().size(), GETDATA_MAX_OBJECTS);
        init(); // a start anew keeps what is there
        QCOMPARE(read("select count(*) from TempAndHum"), "42");
        QCOMPARE(read("select Time from TempAndHum where Temp = 5"), "2024-03-09 12:00:05");
    }

    void lockedFileAndFullDisk()
    {
        auto other = QSqlDatabase::addDatabase("QSQLITE", "other program");
        other.setDatabaseName("ZellQt4.db");
        QVERIFY(other.open());
        rlimit room{};
        getrlimit(RLIMIT_FSIZE, &room);
        const rlimit none{0, room.rlim_max};
        signal(SIGXFSZ, SIG_IGN);
        for (const bool locked : {true, false}) {
            locked ? other.exec("begin exclusive") : QSqlQuery();
            setrlimit(RLIMIT_FSIZE, locked ? &room : &none);
            const MessageLog log;
            const QDeadlineTimer deadline(2000);
            database->DeleteDataBaseTimeItem("TempAndHum", noon);
            database->InsertDataBaseItem(noon, "TempAndHum", 23, locked);
            const bool quick = !deadline.hasExpired();
            setrlimit(RLIMIT_FSIZE, &room);
            other.exec("rollback");
            QVERIFY(quick && log.count("Insert fail!") == 1 && !log.contains("QSql"));
            database->InsertDataBaseItem(noon + 1, "TempAndHum", 23, locked);
        }
        QCOMPARE(read("select Hum from TempAndHum"), "1 0");
    }

    void damagedFileIsSetAside()
    {
        read("insert into PM2_5 with recursive n(i) as (select 1 union all select i + 1 from n "
             "where i < 1000) select i, '', 7 from n");
        QFile file("ZellQt4.db");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray damaged[] = {"no database", file.read(5000)};
        file.close();
        for (const QByteArray &content : damaged) {
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
            file.close();
            init();
            database->InsertDataBaseItem(noon, "TempAndHum", 23, 45);
            database->DeleteDataBaseTimeItem("PM2_5", noon);
            database->InsertDataBaseItem(noon + 1, "PM2_5", 0, 35);
            QCOMPARE(read("select Temp || ' ' || PM2_5 from TempAndHum, PM2_5"), "23 35");
            QFile aside("ZellQt4.db.damaged" + QString(content == damaged[0] ? "1" : "2"));
            QVERIFY(aside.open(QIODevice::ReadOnly) && aside.readAll() == content);
        }
    }
};

ZELL_TEST_MAIN(TestZellDatabase)
#include "test_zell_database.moc"
