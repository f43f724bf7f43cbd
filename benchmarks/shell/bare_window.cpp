// What the product is held against: a window of Qt Widgets with the same background and nothing of
// the product, by its side one that has Qt Quick loaded, too.

#include <QApplication>
#include <QLabel>
#ifdef WITH_QUICK
#include <QQuickWindow>
#endif

int main(int argc, char *argv[])
{
#ifdef WITH_QUICK
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
#endif
    const QApplication application(argc, argv);
    QLabel window;
    window.setPixmap(QPixmap(QStringLiteral(ZELL_BACKGROUND)));
    window.setGeometry(0, 0, 854, 480);
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    window.show();
    return QApplication::exec();
}
