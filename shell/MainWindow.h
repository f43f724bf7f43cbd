#pragma once

#include <QMainWindow>
#include <memory>

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

private slots:
    void jump_toOption();
    void jump_toMainPage();
    void anOption_finished();

private:
    void style_setup();
    void font_init();

    std::unique_ptr<Ui::MainWindow> ui;
};
