#include "store/StoreRules.h"

#include <QDateTime>
#include <algorithm>

namespace {
constexpr std::time_t sixDays = 518400;
}

QStringList tableStatements()
{
    return {
        // One sync a row; figures of the choice stand in docs/reliability.md. Where the card's file
        // system knows no write-ahead log the first line keeps the last row over a power cut.
        QStringLiteral("pragma synchronous = extra"),
        QStringLiteral("pragma journal_mode = wal"),
        QStringLiteral("create table PM2_5 (UnixSec uint, Time varchar(30),PM2_5 int)"),
        QStringLiteral(
            "create table TempAndHum (UnixSec uint, Time varchar(30),Temp int,Hum  int)"),
        QStringLiteral("create table PM2_5_NoWiFi (UnixSec uint, Time varchar(30),PM2_5 int)"),
        QStringLiteral(
            "create table TempAndHum_NoWiFi (UnixSec uint, Time varchar(30),Temp int,Hum  int)"),
    };
}

std::time_t retentionCutoff(std::time_t now)
{
    const QTime clock = QDateTime::fromSecsSinceEpoch(now).time();
    const std::time_t secondsToday = clock.msecsSinceStartOfDay() / 1000;
    return std::max<std::time_t>(0, now - sixDays - secondsToday);
}

QString localTimeText(std::time_t time)
{
    return QDateTime::fromSecsSinceEpoch(time).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}
