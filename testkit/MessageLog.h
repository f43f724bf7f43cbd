#pragma once

#include <QStringList>

/// Collects every debug line and warning written while it lives. One at a time, GUI thread.
class MessageLog
{
public:
    MessageLog();
    ~MessageLog();
    MessageLog(const MessageLog &) = delete;
    MessageLog &operator=(const MessageLog &) = delete;

    QStringList lines() const;
    /// Counts the lines that contain @p text.
    int count(const QString &text) const;
    bool contains(const QString &text) const;
    void clear();
};
