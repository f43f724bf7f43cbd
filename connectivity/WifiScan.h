#pragma once

#include <QStringList>
#include <chrono>

class QIODevice;

/// The scan for networks as it leaves and enters the program: a shell command whose output becomes
/// a text file. Format of a line: that of the wireless tools' `iwlist`, 20 blanks and ESSID:"name".

/// Tells where the scan run in @p directory writes its result.
QString scanFilePath(const QString &directory);

/// Builds the shell command that scans and writes scanFilePath(). Nothing of @p directory is
/// executed, whatever characters it holds.
QString scanCommand(const QString &directory);

/// Runs @p command and waits for it. At @p limit it is ended; the whole lines that it wrote until
/// then, or its first 8 MB, stay as the result.
void runScan(const QString &command, std::chrono::milliseconds limit = std::chrono::seconds(20));

/// Reads the names in @p scan, in its order, with duplicates and hidden (empty) ones: every line
/// from its character 27 on without the last one. A line of another shape is cut in the same way.
///
/// Reads no more than a device could ever find in reach: 1000 networks of 8 MB in all, and of each
/// line the first 1024 bytes. What lies beyond is left out, with one debug line.
QStringList readNetworkNames(QIODevice &scan);
