#include "Names.h"
#include "shell/Global_cfg.h"
#include "shell/MainWindow.h"

static_assert(has<MainWindow, QMainWindow>(
    &MainWindow::signal_update, &MainWindow::signal_activeStatus,
    &MainWindow::signal_inactiveStatus, &MainWindow::time_update, &MainWindow::change_status,
    &MainWindow::jump_toOption, &MainWindow::jump_toMainPage, &MainWindow::anOption_finished));
static_assert(exist(PM25_SAMPING_INTERVAL, PM25_SAMPING_DURATION, PM25_NUMBER, PM25_NO_SAMPING,
                    PM25_SAMPING_WAIT, PM25_SAMPING, PM25_ERROR_DATA, PM25_SAMPING_END_DATA,
                    TEMPHUM_TIME_duration, &g_sLanguage));

// The resources of the product have a name of their own, too.
void resources()
{
    Q_INIT_RESOURCE(ZellQt);
}
