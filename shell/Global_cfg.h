#pragma once

#include <QString>

/// The constants of the sampling cycle and the current language, shared by the whole program.

/// Period of the PM2.5 sampling timer, in ms.
inline constexpr int PM25_SAMPING_INTERVAL = 15 * 60 * 1000;
/// How long the sensor link stays open once a sampling has started, in ms.
inline constexpr int PM25_SAMPING_DURATION = 10 * 1000;
/// Readings meant for one sampling period.
inline constexpr int PM25_NUMBER = 4;

/// State of a scheduler: no sampling in progress.
inline constexpr int PM25_NO_SAMPING = 0;
/// State of a scheduler: sampling started, the link is open.
inline constexpr int PM25_SAMPING_WAIT = 1;
/// State of a scheduler: sampling in progress; never entered.
inline constexpr int PM25_SAMPING = 2;

/// The sensor link's value for "no valid reading".
inline constexpr int PM25_ERROR_DATA = 999999;
/// Marks the end of a sampling.
inline constexpr int PM25_SAMPING_END_DATA = -1;

/// One-second temperature and humidity readings averaged into one stored row.
inline constexpr int TEMPHUM_TIME_duration = 300;

/// The reading that stands for "no valid reading" in temperature, humidity and PM2.5 alike; the
/// screens draw it as dashes.
inline constexpr int invalidReading = 9999;

/// How many schedulers may exist at once, the three of normal running counted in. Every stored row
/// builds one more, and all of them share the counter that triggers the next row, so without a
/// ceiling their number would grow exponentially: half a million after an hour.
inline constexpr int GETDATA_MAX_OBJECTS = 32;

/// File name of the translation in use ("US.qm", "ZH_SIMPLE.qm", "ZH_COMPLEX.qm"), or empty where
/// the device has no language file. Written by start-up only.
inline QString g_sLanguage;
