#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <chrono>

/// The file of the measurement history on Qt's default connection. GUI thread.

/// What an executed statement says about the file: Passing may be over at the next attempt (a full
/// or read-only card, a closed connection), Unusable is a file that will never take it.
enum class Refusal { None, Locked, Passing, Unusable };

Refusal refusalOf(const QSqlQuery &query);

/// Gives the default connection, open or not, without opening it.
QSqlDatabase storeConnection();

/// Opens @p fileName, made empty where it is missing, on the default connection; one that holds
/// this very file stays as it is. What lies there or beside it without being a regular file is
/// set aside and never opened. False where the connection is closed then.
bool openStore(const QString &fileName);

/// Counts how often the connection was opened: what was learnt on one says nothing about the next.
int storeOpenings();

/// Closes the default connection, by which everything comes to lie in the one file.
void closeStore();

/// How long a statement waits for another program that holds the file. SQLite's own default in Qt
/// is five seconds, a frozen screen.
constexpr std::chrono::milliseconds lockLimit{100};

/// Sets another limit for the connection that is open.
void waitForLock(std::chrono::milliseconds limit);

/// Renames @p fileName, closed, to the first name that is free of "<fileName>.damaged1" to
/// "<fileName>.damaged9", with what SQLite keeps beside it; the ninth gives way to a tenth. Writes
/// one debug line. False where the file had to stay.
bool setAside(const QString &fileName);
