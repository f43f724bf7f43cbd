#include "testkit/MessageLog.h"

#include <QtGlobal>
#include <algorithm>

namespace {
QStringList collected;
QtMessageHandler previousHandler = nullptr;

void collect(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    collected.append(text);
    if (type == QtFatalMsg && previousHandler)
        previousHandler(type, context, text);
}
} // namespace

MessageLog::MessageLog()
{
    collected.clear();
    previousHandler = qInstallMessageHandler(collect);
}

MessageLog::~MessageLog()
{
    qInstallMessageHandler(previousHandler);
}

QStringList MessageLog::lines() const
{
    return collected;
}

int MessageLog::count(const QString &text) const
{
    return int(std::count_if(collected.cbegin(), collected.cend(),
                             [&](const QString &line) { return line.contains(text); }));
}

bool MessageLog::contains(const QString &text) const
{
    return count(text) > 0;
}

void MessageLog::clear()
{
    collected.clear();
}
