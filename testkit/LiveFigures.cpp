#include "testkit/LiveFigures.h"

#include "pages/Page.h"
#include "shell/Global_cfg.h"

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QFile>
#include <QMutex>
#include <QPropertyAnimation>
#include <QSet>
#include <QThread>
#include <unistd.h>

// Qt tells tools of the birth and death of each object, through this table of QtCore.
extern Q_DECL_IMPORT quintptr qtHookData[];

namespace {
constexpr int addHook = 3;
constexpr int removeHook = 4;
// A socket, the lock of the serial line, a second descriptor of the store's log.
constexpr int comeAndGo = 3;

QMutex mutex;

QSet<QObject *> &living()
{
    // Never destroyed: objects die until the very end.
    static auto *all = new QSet<QObject *>;
    return *all;
}

// A page that was left stays, emptied, and so does the animation that slid a page in.
bool isLeftOnPurpose(const QObject *object)
{
    if (const auto *animation = qobject_cast<const QPropertyAnimation *>(object))
        return animation->state() == QAbstractAnimation::Stopped;
    for (; object; object = object->parent()) {
        const auto *page = qobject_cast<const Page *>(object);
        if (page && page->isEmptied())
            return true;
    }
    return false;
}

int entriesOf(const char *folder)
{
    return int(QDir(QString::fromLatin1(folder)).entryList(QDir::AllEntries | QDir::System).size());
}
} // namespace

void LiveFigures::listen()
{
    qtHookData[addHook] = reinterpret_cast<quintptr>(+[](QObject *object) {
        const QMutexLocker locker(&mutex);
        living().insert(object);
    });
    qtHookData[removeHook] = reinterpret_cast<quintptr>(+[](QObject *object) {
        const QMutexLocker locker(&mutex);
        living().remove(object);
    });
}

LiveFigures LiveFigures::now()
{
    LiveFigures figures;
    {
        const QMutexLocker locker(&mutex);
        for (QObject *object : std::as_const(living())) {
            if (object->thread() != QThread::currentThread())
                continue;
            figures.timers +=
                int(QAbstractEventDispatcher::instance()->registeredTimers(object).size());
            figures.objects += isLeftOnPurpose(object) ? 0 : 1;
            const auto *page = qobject_cast<const Page *>(object);
            figures.emptiedPages += page && page->isEmptied() ? 1 : 0;
        }
    }
    figures.descriptors = entriesOf("/proc/self/fd");
    figures.threads = entriesOf("/proc/self/task");
    QFile memory(QStringLiteral("/proc/self/statm"));
    if (memory.open(QIODevice::ReadOnly))
        figures.residentKiB =
            memory.readAll().split(' ').value(1).toInt() * int(sysconf(_SC_PAGESIZE) / 1024);
    return figures;
}

QString LiveFigures::text() const
{
    return QStringLiteral("%1 objects, %2 timers, %3 descriptors, %4 threads, %5 KiB, "
                          "%6 emptied pages")
        .arg(objects)
        .arg(timers)
        .arg(descriptors)
        .arg(threads)
        .arg(residentKiB)
        .arg(emptiedPages);
}

bool LiveFigures::isAbove(const LiveFigures &level) const
{
    return objects > level.objects || timers > level.timers ||
           descriptors > level.descriptors + comeAndGo ||
           threads > level.threads + GETDATA_MAX_OBJECTS;
}
