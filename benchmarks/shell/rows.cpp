#include "benchmarks/support/Row.h"
#include "walk/Walk.h"

#include <QApplication>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>
#include <ctime>

namespace {
using namespace std::chrono_literals;

struct FirstPicture
{
    double microseconds = 0; ///< of the CPU, from the start of the process
    double residentKiB = 0;
};

FirstPicture firstPictureOf(const char *program)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(ZELL_PLUGINS));
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"),
                       QStringLiteral("zellfirstpicture"));
    process.setProcessEnvironment(environment);
    process.start(QLatin1String(program), QStringList());
    process.waitForFinished();
    const QList<QByteArray> told = process.readAllStandardOutput().trimmed().split(' ');
    if (process.exitStatus() != QProcess::NormalExit || told.size() != 2)
        qFatal("%s shows no picture", program);
    return {told[0].toDouble(), told[1].toDouble()};
}

// In times of the bare window, which takes its turn.
void start(Row &row)
{
    firstPictureOf(ZELL_PRODUCT);
    std::vector<double> bare;
    while (row.isOpen()) {
        bare.push_back(firstPictureOf(ZELL_BARE_WINDOW).microseconds / 1e6);
        row.add(Row::Seconds(firstPictureOf(ZELL_PRODUCT).microseconds / 1e6));
    }
    row.measureIn(Row::Seconds(Yardstick::quantile(bare, 0.5)));
}

void memory(Row &row)
{
    firstPictureOf(ZELL_PRODUCT);
    row.figure(firstPictureOf(ZELL_PRODUCT).residentKiB /
               firstPictureOf(ZELL_BARE_QUICK).residentKiB);
}

Row::Seconds processTime()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
}

class Paintings : public QObject
{
public:
    Paintings() { QApplication::instance()->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

// In per cent of a core, all threads.
void idleMinute(Row &row)
{
    constexpr std::chrono::seconds minute = 1min;
    const Walk walk;
    walk.settle();
    const Paintings paintings;
    const Row::Seconds before = processTime();
    QEventLoop loop;
    QTimer::singleShot(minute, &loop, &QEventLoop::quit);
    loop.exec();
    row.figure((processTime() - before) / minute * 100);
    if (paintings.count > 0)
        row.fail("it paints");
}

const Rows rows({
    {.name = "start, times the bare window", .measure = start, .samples = 15, .isPaced = false},
    {.name = "memory, times bare Widgets and Quick", .measure = memory, .isPaced = false},
    {.name = "idle minute, per cent", .measure = idleMinute, .isPaced = false},
});
} // namespace
