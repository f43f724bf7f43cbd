#pragma once

#include "store/KnownRows.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QSqlQuery>
#include <QString>
#include <QThread>
#include <QTimer>
#include <QVariantList>
#include <ctime>
#include <deque>
#include <memory>
#include <vector>

class GetData;

/// The measurement history: one SQLite file on Qt's default connection.
///
/// Works in the thread of its caller, the GUI thread; its own thread never runs. A failure is told
/// by one debug line where the function says so and is otherwise silent; no error reaches the
/// caller, and the program goes on.
///
/// A store that takes no row for now (locked, full, read-only) gets it later: the last eight rows
/// wait and are tried again every second. A locked file is waited for a tenth of a second a row, so
/// that the screen never freezes. A file that will never take a row, damaged or of another shape,
/// is set aside and begun anew.
class ZellDatabase : public QThread
{
    Q_OBJECT

public:
    explicit ZellDatabase(QObject *parent = nullptr);
    /// Takes the schedulers along that its inserts built. Where this is `zelldatabase` it closes
    /// the file, which holds everything then and may be copied.
    ~ZellDatabase() override;

    /// Have no effect: CreateDataBase() opens the file, the destructor closes it.
    void open_database();
    void close_database();

    /// Opens "ZellQt4.db" in the working directory and makes its tables.
    void openMeasurements();

    /// Opens @p fileName, made empty where it is missing, on the default connection. One that is
    /// open on another file, or on one that was moved away, is opened anew, which ends every query
    /// prepared on it. Writes "Open DB fail!" where that fails.
    void CreateDataBase(const QString &fileName);

    /// Executes @p statement. Silent on failure: at every start but the first the table exists.
    void CreateDataBaseTable(const QString &statement);

    /// Drops the rows of @p tableName, "PM2_5" or "TempAndHum", that are older than today and the
    /// six days before it; @p now in Unix seconds. Any other table is left alone.
    void DeleteDataBaseTimeItem(const QString &tableName, long now);

    /// Deletes nothing: the names never get into its statement, and SQLite rejects it silently.
    void DeleteDataBaseItem(const QString &tableName, const QString &column, const QString &value);

    /// Diagnostic probe: writes whether the PM2.5 table can be read. Reads no rows.
    void QueryPm25Values();

public slots:
    /// Stores one row taken at @p iTimeSec (Unix seconds), unless its values repeat those of the
    /// last row stored. "PM2_5" takes @p value2; "TempAndHum" takes @p value as temperature and
    /// @p value2 as humidity; the tables ending in "_NoWiFi" take rows without network only.
    /// Writes "Insert fail!" where the main table got no row yet, for whatever reason.
    void InsertDataBaseItem(time_t iTimeSec, const QString &tableName, int value, int value2);

protected:
    void run() override;

private slots:
    void retry();

private:
    struct Row
    {
        std::time_t time;
        QString tableName;
        int value, value2;
    };

    QSqlQuery execute(const QString &statement, const QVariantList &values = {});
    bool change(const QString &statement, const QVariantList &values);
    QSqlQuery changeAnew(const QString &statement, const QVariantList &values);
    bool makeTables();
    KnownRows &rowsOf(const QString &tableName);
    QVariantList readLastRow(const QString &tableName, const QString &columns);
    bool repeatsLastRow(const Row &row);
    bool insert(const Row &row);
    bool storeWaiting();
    void letRowsWait();
    bool networkAvailable();

    // What the file was like when its rows were known, this store's own writes included.
    struct FileState
    {
        int opening = 0;
        qint64 ofOthers = 0, ofTables = 0, changes = 0;
        bool operator==(const FileState &) const = default;
    };

    std::vector<std::unique_ptr<GetData>> schedulers;
    FileState fileState;
    QHash<QString, KnownRows> knownRows;
    std::deque<Row> waiting;
    int lostRows = 0;
    // Runs while rows wait.
    QTimer retryTimer{this};
    QDeadlineTimer restAfterLock;
    QString lastTrouble;
};

/// The one database of the program. Set by main before the first scheduler is built; null again
/// once that database is gone.
extern ZellDatabase *zelldatabase;
