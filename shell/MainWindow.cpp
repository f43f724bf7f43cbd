#include "shell/MainWindow.h"

#include "pages/Fonts.h"
#include "pages/SlideIn.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QDebug>
#include <QFile>
#include <QFontDatabase>

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , ui(std::make_unique<Ui::MainWindow>())
{
    ui->setupUi(this);
    style_setup();
    font_init();
    ui->stackedWidget->setCurrentWidget(ui->page_main);
}

MainWindow::~MainWindow() = default;

void MainWindow::style_setup()
{
    QFile file(QStringLiteral(":resource/qss/ZellQt.qss"));
    if (file.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
}

void MainWindow::font_init()
{
    registerDeviceFonts();
    substituteFonts();
    for (const QString &family : QFontDatabase::families())
        qDebug() << "add Font:" << family;
}

void MainWindow::jump_toOption()
{
    connect(slideIn(ui->page_option), &QPropertyAnimation::finished, this,
            &MainWindow::anOption_finished);
}

void MainWindow::anOption_finished()
{
    ui->stackedWidget->setCurrentWidget(ui->page_option);
}

void MainWindow::jump_toMainPage()
{
    ui->stackedWidget->setCurrentWidget(ui->page_main);
}
