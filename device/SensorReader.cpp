#include "device/SensorReader.h"

#include "device/RegularFile.h"

#include <QDebug>
#include <QElapsedTimer>
#include <system_error>
#include <thread>
#include <utility>

namespace {
using namespace std::chrono_literals;

// A sysfs file never holds more than a page.
constexpr qint64 longestFile = 4096;
constexpr auto longestWait = 250ms;
// Of which every scheduler may cost one a second.
constexpr auto quick = 5ms;
constexpr auto slowTextTime = 500ms;
} // namespace

QByteArray SensorReader::read(const QString &path)
{
    if (!slowTextServes.hasExpired())
        return slowText;
    auto wait = 0ms;
    if (!outstanding.valid()) {
        begin(path);
        wait = longestWait;
    }
    if (!outstanding.valid() || outstanding.wait_for(wait) != std::future_status::ready)
        return {};
    Answer answer = outstanding.get();
    if (answer.took > quick) {
        slowText = answer.text;
        slowTextServes.setRemainingTime(slowTextTime);
    }
    return answer.text;
}

// Timed where nothing but the driver counts, not the load of the machine.
SensorReader::Answer SensorReader::readTimed(const QString &path)
{
    QElapsedTimer timer;
    timer.start();
    const QByteArray text = readRegularFile(path, longestFile);
    return {text, std::chrono::milliseconds(timer.elapsed())};
}

void SensorReader::begin(const QString &path)
{
    std::packaged_task<Answer()> task([path] { return readTimed(path); });
    std::future<Answer> answer = task.get_future();
    try {
        // One that hangs in the driver can only be left to itself.
        std::thread(std::move(task)).detach();
        outstanding = std::move(answer);
    } catch (const std::system_error &error) {
        qDebug() << "no thread to read in:" << error.what();
    }
}
