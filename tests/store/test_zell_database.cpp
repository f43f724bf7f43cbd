#include "acquisition/GetData.h"
#include "shell/Global_cfg.h"
#include "store/ZellDatabase.h"
#include "tests/support/Environment.h"
#include "tests/support/MessageLog.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

class TestZellDatabase : public QObject
{
    Q_OBJECT

    static constexpr time_t noon = 1709956800; // 2024-03-09 12:00:00 in Shanghai
    const QStringList tables{"PM2_5", "TempAndHum", "PM2_5_NoWiFi", "TempAndHum_NoWiFi"};
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

    void cleanup()
    {
        database.reset();
        QFile::remove("ZellQt4.db");
    }

    void inserts_data()
    {
        QTest::addColumn<QString>("items"); // + is stored, - is not
        QTest::newRow("repeated") << "+TempAndHum/0/45 -TempAndHum/0/45 -TempAndHum/0/45";
        QTest::newRow("one differs") << "+TempAndHum/1/2 +TempAndHum/1/3 +TempAndHum/4/3";
        QTest::newRow("back again") << "+TempAndHum/1/2 +TempAndHum/3/4 +TempAndHum/1/2";
        QTest::newRow("value ignored") << "+PM2_5/7/35 -PM2_5/8/35 +PM2_5/8/36";
        QTest::newRow("both tables") << "+PM2_5/0/35 +TempAndHum/1/2 +PM2_5/0/35";
        QTest::newRow("network there") << "-PM2_5_NoWiFi/0/1 -TempAndHum_NoWiFi/1/2 -Test/1/2";
    }

    void inserts()
    {
        QFETCH(QString, items);
        MessageLog log;
        time_t time = noon;
        for (const QString &item : items.split(' ')) {
            const bool stored = item.startsWith('+');
            const QStringList parts = item.sliced(1).split('/');
            const QString &table = parts[0];
            log.clear();
            database->InsertDataBaseItem(++time, table, parts[1].toInt(), parts[2].toInt());
            const QString row = QString("2024-03-09 12:00:0%1").arg(time - noon) + '/' +
                                (table == "PM2_5" ? parts[2] : parts[1] + '/' + parts[2]);
            const QString columns = table.startsWith("PM2_5") ? "PM2_5" : "Temp || '/' || Hum";
            QCOMPARE(read(QString("select Time || '/' || %1 from %2 where UnixSec = %3")
                              .arg(columns, table, QString::number(time))),
                     stored ? row : QString());
            QCOMPARE(GetData::iLastUnixSec == time, stored);
            QCOMPARE(log.contains("Insert fail!"), !stored);
            QVERIFY(!log.contains("QSql"));
        }
    }

    void retention_data()
    {
        QTest::addColumn<qint64>("now");
        QTest::addColumn<qint64>("cutoff");
        const qint64 midnight = noon - 43200;
        QTest::newRow("00:00:00") << midnight << midnight - 518400;
        QTest::newRow("10:00:00") << midnight + 36000 << midnight - 518400;
        QTest::newRow("23:59:59") << midnight + 86399 << midnight - 518400;
        QTest::newRow("clock never set") << qint64(20) << qint64(0);
    }

    void retention()
    {
        QFETCH(qint64, now);
        QFETCH(qint64, cutoff);
        for (const QString &table : tables) {
            for (const qint64 time : {cutoff, cutoff + 1, now})
                read(QString("insert into %1 (UnixSec) values (%2)").arg(table).arg(time));
            database->DeleteDataBaseTimeItem(table, long(now));
            const int kept = table.endsWith("NoWiFi") ? 3 : 2;
            QCOMPARE(read("select count(*) from " + table).toInt(), kept);
            QCOMPARE(read("select max(UnixSec) from " + table).toLongLong(), now);
        }
    }

    void restartKeepsRows()
    {
        database->InsertDataBaseItem(noon, "TempAndHum", 23, 45);
        init();
        database->InsertDataBaseItem(noon + 1, "TempAndHum", 23, 45); // the first of a run stays
        QCOMPARE(read("select time(Time) from TempAndHum"), QString("12:00:00 12:00:01"));
    }

    void schedulersStopAtTheCeiling()
    {
        for (int i = 0; i < GETDATA_MAX_OBJECTS + 10; ++i)
            database->InsertDataBaseItem(noon + i, "TempAndHum", i, 0);
        QCOMPARE(GetData::objects().size(), GETDATA_MAX_OBJECTS);
        QCOMPARE(read("select count(*) from TempAndHum"), QString("42"));
    }

    void unwritable_data()
    {
        QTest::addColumn<QString>("how");
        for (const char *how : {"locked", "disk full", "read-only", "no file"})
            QTest::newRow(how) << how;
    }

    void unwritable()
    {
        QFETCH(QString, how);
        auto other = QSqlDatabase::addDatabase("QSQLITE", "other program, " + how);
        other.setDatabaseName("ZellQt4.db");
        QVERIFY(other.open());
        rlimit room{};
        getrlimit(RLIMIT_FSIZE, &room);
        const rlimit none{0, room.rlim_max};
        signal(SIGXFSZ, SIG_IGN);
        if (how == "locked")
            other.exec("begin exclusive");
        if (how == "disk full")
            setrlimit(RLIMIT_FSIZE, &none);
        if (how == "read-only") { // for root, too: be somebody else, who must find the way here
            for (const char *path : {"../..", "..", ".", "ZellQt4.db"})
                QFile::setPermissions(path, QFile::Permissions(0x5555));
            QVERIFY(geteuid() != 0 || seteuid(65534) == 0);
        }
        if (how == "no file")
            QVERIFY(QFile::remove("ZellQt4.db") && QDir().mkdir("ZellQt4.db"));

        auto log = std::make_unique<MessageLog>();
        QElapsedTimer elapsed;
        elapsed.start();
        database->DeleteDataBaseTimeItem("TempAndHum", noon);
        database->InsertDataBaseItem(noon, "TempAndHum", 23, 45);
        const qint64 spent = elapsed.elapsed();
        const QStringList lines = log->lines();
        log.reset();

        QCOMPARE(seteuid(getuid()), 0);
        setrlimit(RLIMIT_FSIZE, &room);
        for (const char *path : {"../..", "..", ".", "ZellQt4.db"})
            QFile::setPermissions(path, QFile::Permissions(0x7755));
        QDir().rmdir("ZellQt4.db");
        other.exec("rollback");
        QCOMPARE(lines.count("Insert fail!"), 1);
        QCOMPARE(lines.filter("QSql"), QStringList());
        QVERIFY2(spent < 2000, qPrintable(QString::number(spent)));
        database->InsertDataBaseItem(noon + 1, "TempAndHum", 23, 45);
        QCOMPARE(read("select time(Time) from TempAndHum"), QString("12:00:01"));
    }
};

ZELL_TEST_MAIN(TestZellDatabase)
#include "test_zell_database.moc"
