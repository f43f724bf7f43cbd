#include "Names.h"
#include "acquisition/GetData.h"
#include "shell/Global_cfg.h"
#include "shell/MainWindow.h"
#include "store/ZellDatabase.h"

#include <QTimer>

void shell()
{
    Q_INIT_RESOURCE(ZellQt);
    const int constants[] = {PM25_SAMPING_INTERVAL, PM25_SAMPING_DURATION, PM25_NUMBER,
                             PM25_NO_SAMPING,       PM25_SAMPING_WAIT,     PM25_SAMPING,
                             PM25_ERROR_DATA,       PM25_SAMPING_END_DATA, TEMPHUM_TIME_duration};
    g_sLanguage = QString::number(constants[0]);
    zelldatabase = new ZellDatabase;
    getData = new GetData;
    randUARTSignal = new QTimer;

    MainWindow window(nullptr);
    QMainWindow &base = window;
    base.show();
    listen(&window, &MainWindow::signal_update, &MainWindow::signal_activeStatus,
           &MainWindow::signal_inactiveStatus);
    call(window, &MainWindow::time_update, &MainWindow::change_status, &MainWindow::jump_toOption,
         &MainWindow::jump_toMainPage, &MainWindow::anOption_finished);
}
