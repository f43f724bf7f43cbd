// Starts, shows its first picture and ends. With the argument "product" that is the main window
// with all that stands before it, otherwise a plain window with the same background.

#include "acquisition/GetData.h"
#include "pages/Language.h"
#include "shell/MainWindow.h"
#include "store/ZellDatabase.h"

#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <QTranslator>
#include <cstdlib>

namespace {
class FirstPicture : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        // The picture is out once the event loop turns again.
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, [] { std::_Exit(EXIT_SUCCESS); });
        return false;
    }
};

int run(QWidget *window)
{
    FirstPicture picture;
    QApplication::instance()->installEventFilter(&picture);
    window->setGeometry(0, 0, 854, 480);
    window->setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    window->show();
    return QApplication::exec();
}

int runProduct()
{
    ZellDatabase database;
    zelldatabase = &database;
    const GetData scheduler;
    QTranslator translator;
    static_cast<void>(translator.load(Language({}).resource()));
    QApplication::installTranslator(&translator);
    MainWindow window;
    return run(&window);
}
} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    Q_INIT_RESOURCE(ZellQt);
    if (QApplication::arguments().contains(QStringLiteral("product")))
        return runProduct();
    QLabel window;
    window.setPixmap(
        QPixmap(QStringLiteral(":/resource/images/mainPage/backgroud/backgroudMain.png")));
    return run(&window);
}
