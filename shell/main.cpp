#include "shell/Global_cfg.h"
#include "shell/Language.h"
#include "shell/MainWindow.h"

#include <QApplication>
#include <QDir>
#include <QQuickWindow>
#include <QTranslator>

int main(int argc, char *argv[])
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QApplication application(argc, argv);
    Q_INIT_RESOURCE(ZellQt);

    g_sLanguage = readLanguageFile(QDir::currentPath());
    QTranslator translator;
    // A name that matches no resource leaves the source texts in place.
    static_cast<void>(translator.load(translationResource(g_sLanguage)));
    QApplication::installTranslator(&translator);

    MainWindow window;
    window.setGeometry(0, 0, 854, 480);
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    window.show();
    return QApplication::exec();
}
