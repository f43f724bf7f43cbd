#pragma once

#include <QString>

/// What must level off in a program that runs for years, counted in this process.
struct LiveFigures
{
    int objects = 0;     ///< QObjects of this thread, without those that are left on purpose
    int timers = 0;      ///< running ones of this thread
    int descriptors = 0; ///< open files, sockets, pipes
    int threads = 0;
    int residentKiB = 0;

    static LiveFigures now();

    QString text() const;
    /// Tells whether anything has grown beyond @p level, but for memory, of which the sanitizers
    /// keep what was freed, and for the threads that schedulers start and end.
    bool isAbove(const LiveFigures &level) const;
};
