#pragma once

#include <QSqlError>
#include <QString>

/// What becomes of a database file that is damaged, as after a power cut on worn flash: no
/// statement succeeds on it any more, so it makes room for a new one. Nothing is deleted.

/// Tells whether @p error says that the file is damaged or no SQLite file at all.
bool isDamage(const QSqlError &error);

/// Renames the closed database @p fileName to the first name that is free of "<fileName>.damaged1"
/// to "<fileName>.damaged9". Writes one debug line. False where the file had to stay.
bool setAside(const QString &fileName);
