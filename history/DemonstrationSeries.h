#pragma once

#include <QMap>
#include <functional>

/// Builds the series that the history page shows: a slow wave from 12:00 six days ago to 09:45
/// today, four samples in about two hours of three.
///
/// @p now is in Unix seconds; @p quantity sets the level (2: 50 to 110); @p random is drawn once
/// per hour, and an hour whose number is a multiple of 3 stays empty. Returns Unix time to value;
/// times that no int can hold are left out.
QMap<int, float> demonstrationSeries(qint64 now, int quantity, const std::function<int()> &random);
