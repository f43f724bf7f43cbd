#pragma once

#include <QString>

/// What must level off in a program that runs for years, counted in this process.
struct LiveFigures
{
    /// QObjects of this thread that were born after listen(), without those left on purpose.
    int objects = 0;
    int timers = 0;      ///< running ones of this thread
    int descriptors = 0; ///< open files, sockets, pipes
    int threads = 0;
    int emptiedPages = 0; ///< frames of pages that were left, which stay on purpose
    int residentKiB = 0;

    /// Begins to follow the birth and death of objects. Before the first of them that counts.
    static void listen();
    static LiveFigures now();

    QString text() const;
    /// Tells whether anything has grown beyond @p level, but for memory, of which the sanitizers
    /// keep what was freed, for the threads that schedulers start and end, and for three
    /// descriptors.
    bool isAbove(const LiveFigures &level) const;
};
