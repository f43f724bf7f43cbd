#include "simulator/StoreTrouble.h"

#include "simulator/DeviceRoot.h"

#include <QDebug>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <utility>

namespace simulator {
namespace {
const QString lockName = QStringLiteral("zell-simulator");

// Takes the lock that keeps out every other process, as a tool that reads the database may.
void lock(const QString &path)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), lockName);
    database.setDatabaseName(path);
    if (!database.open() || !QSqlQuery(database).exec(QStringLiteral("begin exclusive")))
        qInfo("the store cannot be locked");
}
} // namespace

StoreTrouble::StoreTrouble(Settings troubleSettings, QObject *parent)
    : QObject(parent)
    , settings(std::move(troubleSettings))
{
    timer.setSingleShot(true);
    timer.callOnTimeout(this, &StoreTrouble::begin);
}

StoreTrouble::~StoreTrouble()
{
    end();
}

void StoreTrouble::start()
{
    if (settings.fault != StoreFault::None)
        timer.start(settings.beginsAfter);
}

void StoreTrouble::begin()
{
    if (settings.fault == StoreFault::Locked)
        lock(settings.store);
    else
        replaceFile(settings.flag, {});
    qInfo("the fault of the store begins");
    QTimer::singleShot(settings.lasts, this, [this] {
        end();
        qInfo("the fault of the store ends");
    });
}

void StoreTrouble::end()
{
    QSqlDatabase::removeDatabase(lockName);
    QFile::remove(settings.flag);
}

} // namespace simulator
