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

namespace {
constexpr time_t noon = 1709960400; // 2024-03-09 13:00:00 in Shanghai

/// A second program on the same file: the first column of what @p statement yields.
QString read(const QString &statement)
{
    QSqlDatabase other = QSqlDatabase::contains("reader")
                             ? QSqlDatabase::database("reader")
                             : QSqlDatabase::addDatabase("QSQLITE", "reader");
    other.setDatabaseName("ZellQt4.db");
    if (!other.isOpen())
        other.open();
    QSqlQuery query(statement, other);
    QStringList rows;
    while (query.next())
        rows << query.value(0).toString();
    return rows.join(' ');
}

struct Item
{
    const char *table;
    int value;
    int value2;
};
using Items = QList<Item>;
} // namespace
Q_DECLARE_METATYPE(Items)

class TestZellDatabase : public QObject
{
    Q_OBJECT

    std::unique_ptr<ZellDatabase> database;

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
        QSqlDatabase::database().close();
        QSqlDatabase::removeDatabase("reader");
        QFile::remove("ZellQt4.db");
    }

    void inserts_data()
    {
        QTest::addColumn<Items>("items");
        QTest::addColumn<QString>("stored");
        const char *th = "TempAndHum";
        const char *pm = "PM2_5";
        QTest::newRow("repeated") << Items{{th, 0, 45}, {th, 0, 45}, {th, 0, 45}} << "0:0/45";
        QTest::newRow("one new") << Items{{th, 1, 2}, {th, 1, 3}, {th, 4, 3}}
                                 << "0:1/2 1:1/3 2:4/3";
        QTest::newRow("back") << Items{{th, 1, 2}, {th, 3, 4}, {th, 1, 2}} << "0:1/2 1:3/4 2:1/2";
        QTest::newRow("value2") << Items{{pm, 7, 35}, {pm, 8, 35}, {pm, 8, 36}} << "0:35 2:36";
        QTest::newRow("both") << Items{{pm, 0, 35}, {th, 1, 2}, {pm, 0, 35}} << "0:35 1:1/2 2:35";
        QTest::newRow("network") << Items{{"PM2_5_NoWiFi", 0, 1}, {"TempAndHum_NoWiFi", 1, 2}}
                                 << "";
        QTest::newRow("unknown") << Items{{"Test", 1, 2}, {"PM2_5; drop table PM2_5", 1, 2}} << "";
    }

    void inserts()
    {
        QFETCH(Items, items);
        QFETCH(QString, stored);
        MessageLog log;
        for (int i = 0; i < items.size(); ++i)
            database->InsertDataBaseItem(noon + i, items[i].table, items[i].value, items[i].value2);
        const QString row = QString("select (UnixSec - %1) || ':' || ").arg(noon);
        QCOMPARE(read(row + "PM2_5 as r from PM2_5 union " + row + "Temp || '/' || Hum" +
                      " from TempAndHum union select 'x' from PM2_5_NoWiFi union" +
                      " select 'x' from TempAndHum_NoWiFi order by r"),
                 stored);
        const QStringList rows = stored.split(' ', Qt::SkipEmptyParts);
        QCOMPARE(log.count("Insert fail!"), int(items.size() - rows.size()));
        const time_t last = stored.isEmpty() ? 0 : noon + rows.last().section(':', 0, 0).toInt();
        QCOMPARE(GetData::iLastUnixSec, last);
        QVERIFY(!log.contains("QSql"));
    }

    void retention_data()
    {
        QTest::addColumn<qint64>("now");
        QTest::addColumn<qint64>("cutoff");
        const qint64 midnight = 1709913600; // 2024-03-09 00:00:00 in Shanghai
        QTest::newRow("10:00:00") << midnight + 36000 << midnight - 518400;
        QTest::newRow("00:00:00") << midnight << midnight - 518400;
        QTest::newRow("23:59:59") << midnight + 86399 << midnight - 518400;
        QTest::newRow("clock never set") << qint64(20) << qint64(0);
    }

    void retention()
    {
        QFETCH(qint64, now);
        QFETCH(qint64, cutoff);
        const QString kept = QString("%1 %2").arg(cutoff + 1).arg(now);
        for (const QString table : {"PM2_5", "TempAndHum", "PM2_5_NoWiFi", "TempAndHum_NoWiFi"}) {
            for (const qint64 time : {cutoff, cutoff + 1, now})
                read(QString("insert into %1 (UnixSec) values (%2)").arg(table).arg(time));
            database->DeleteDataBaseTimeItem(table, long(now));
            const QString old = table.endsWith("NoWiFi") ? QString("%1 ").arg(cutoff) : QString();
            QCOMPARE(read("select UnixSec from " + table + " order by 1"), old + kept);
        }
    }

    void restartKeepsRows()
    {
        MessageLog log;
        database->InsertDataBaseItem(noon, "TempAndHum", 23, 45);
        init();
        database->InsertDataBaseItem(noon + 1, "TempAndHum", 23, 45); // the first of a run stays
        QCOMPARE(read("select time(Time) from TempAndHum"), QString("13:00:00 13:00:01"));
        QVERIFY(log.contains("DB is exist!"));
        QVERIFY(!log.contains("QSql"));
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
        rlimit room{};
        getrlimit(RLIMIT_FSIZE, &room);
        const rlimit none{0, room.rlim_max};
        signal(SIGXFSZ, SIG_IGN);
        if (how == "locked")
            read("begin exclusive");
        if (how == "disk full")
            setrlimit(RLIMIT_FSIZE, &none);
        if (how == "read-only") {
            // Root may write to any file: be somebody else, who needs to find the way here.
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
        read("rollback");
        QCOMPARE(lines.count("Insert fail!"), 1);
        QCOMPARE(lines.filter("QSql"), QStringList());
        QVERIFY2(spent < 2000, qPrintable(QString::number(spent)));
        database->InsertDataBaseItem(noon + 1, "TempAndHum", 23, 45);
        QCOMPARE(read("select UnixSec - 1709960400 from TempAndHum"), QString("1"));
    }
};

ZELL_TEST_MAIN(TestZellDatabase)
#include "test_zell_database.moc"
