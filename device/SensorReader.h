#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QString>
#include <chrono>
#include <future>

/// Reads the file of one sensor, whatever its driver does, and waits a quarter of a second at the
/// most. GUI thread; the reading itself is done in a thread that nobody waits for at the end.
class SensorReader
{
public:
    /// Reads the regular file @p path, 4 KiB at the most. Empty where it cannot be read, where the
    /// driver does not answer in time and, without waiting, from then on until it has answered: no
    /// second reading is begun meanwhile.
    ///
    /// A reading that took long is given again for half a second, a quick one never.
    QByteArray read(const QString &path);

private:
    struct Answer
    {
        QByteArray text;
        std::chrono::milliseconds took;
    };

    static Answer readTimed(const QString &path);
    void begin(const QString &path);

    std::future<Answer> outstanding;
    QByteArray slowText;
    QDeadlineTimer slowTextServes;
};
