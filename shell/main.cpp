#include "acquisition/GetData.h"
#include "acquisition/PM25Uart.h"
#include "device/TerminationSignals.h"
#include "pages/Language.h"
#include "pages/Look.h"
#include "shell/Global_cfg.h"
#include "shell/MainWindow.h"
#include "shell/Watchdog.h"
#include "store/ZellDatabase.h"

#include <QApplication>
#include <QQuickWindow>
#include <QResource>
#include <QScopeGuard>
#include <QTimer>
#include <QTranslator>
#include <bit>
#include <csignal>
#include <memory>
#include <sys/mman.h>
#include <unistd.h>

namespace {
// Nothing of the program's own is left by then. Qt waits for every look-up of a name that is under
// way, ten seconds where the name server is mute.
void limitEndOfQt()
{
    constexpr useconds_t longest = 500'000;
    std::signal(SIGALRM, [](int) { _exit(0); });
    ualarm(longest, 0);
}

// The one large picture that the program's file holds unpacked. It is drawn from its pixels; should
// it be read once more, it comes from the file again.
void forgetPackedBackground()
{
    const QResource background(
        QStringLiteral(":/resource/images/mainPage/backgroud/backgroudMain.png"));
    const qint64 page = sysconf(_SC_PAGESIZE);
    const qint64 begin = (page - qint64(quintptr(background.data())) % page) % page;
    const qint64 length = (background.size() - begin) / page * page;
    if (length > 0)
        madvise(std::bit_cast<void *>(background.data() + begin), std::size_t(length),
                MADV_DONTNEED);
}
} // namespace

int main(int argc, char *argv[])
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QApplication application(argc, argv);
    const auto end = qScopeGuard(&limitEndOfQt);
    const TerminationSignals requests;
    QObject::connect(&requests, &TerminationSignals::received, &application,
                     [] { QCoreApplication::exit(); });
    // On is what a program left that was killed, and what this one leaves without a line.
    PM25Uart::restSupply();
    const auto supply = qScopeGuard(&PM25Uart::restSupply);

    // The measurement side stands before any screen: the database file with its tables exists and
    // the sampling timers are armed, whatever becomes of the window.
    const auto database = std::make_unique<ZellDatabase>();
    zelldatabase = database.get();
    GetData scheduler;
    randUARTSignal = new QTimer(&scheduler);
    Q_INIT_RESOURCE(ZellQt);

    const Language language = Language::stored();
    g_sLanguage = language.translationFile();
    QTranslator translator;
    // A name that matches no resource leaves the source texts in place.
    static_cast<void>(translator.load(language.resource()));
    QApplication::installTranslator(&translator);

    MainWindow window;
    forgetPackedBackground();
    window.setGeometry(QRect(QPoint(0, 0), Look::screen));
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    const Watchdog watchdog(window);
    window.show();
    return QApplication::exec();
}
