#include "acquisition/GetData.h"
#include "pages/Language.h"
#include "pages/Look.h"
#include "shell/Global_cfg.h"
#include "shell/MainWindow.h"
#include "store/ZellDatabase.h"

#include <QApplication>
#include <QQuickWindow>
#include <QTimer>
#include <QTranslator>
#include <memory>

int main(int argc, char *argv[])
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QApplication application(argc, argv);

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
    window.setGeometry(QRect(QPoint(0, 0), Look::screen));
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    window.show();
    return QApplication::exec();
}
