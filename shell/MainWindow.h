#pragma once

#include "acquisition/PM25Uart.h"

#include <QMainWindow>
#include <memory>

class MainView;
class OptionPage;
class ScreenOff;
namespace Ui {
class MainWindow;
}

/// The one window of the device: a stack of the main screen and the settings area. GUI thread.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

signals:
    void signal_update();
    void signal_activeStatus();
    void signal_inactiveStatus();

public slots:
    /// Ticks once a second: a hook without effect.
    void time_update();
    /// Puts an active window to rest, once: a hook for a screen that may sleep.
    void change_status();
    void jump_toOption();
    void jump_toMainPage();
    void anOption_finished();
    /// Slides the settings in with their Wi-Fi page on them. Nothing while they are on their way.
    void openWifi();

private:
    void style_setup();
    void font_init();
    void connect_init();

    std::unique_ptr<Ui::MainWindow> ui;
    MainView *mainView = nullptr;
    bool active = true;
    PM25Uart uart;
    OptionPage *optionPage = nullptr;
    ScreenOff *screenOff = nullptr;
};
