#pragma once

#include <QString>
#include <QStringList>
#include <ctime>

/// The rules of the measurement history that need no database. All thread-safe.

/// Lists the statements that make a connection ready for rows: how it reaches the card, then the
/// four tables. Each of these fails harmlessly where its table exists.
QStringList tableStatements();

/// Tells up to which second rows are dropped at @p now (Unix seconds): local midnight six days
/// before today, so that today and the six days before it stay. Never below 0: a device that starts
/// with its clock at 1970 drops nothing.
std::time_t retentionCutoff(std::time_t now);

/// Writes @p time (Unix seconds) as local time, "2024-03-09 17:05:00".
QString localTimeText(std::time_t time);
