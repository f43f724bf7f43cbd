#include "connectivity/tryConnectApp.h"

#include "connectivity/TextLines.h"
#include "connectivity/connectResult.h"
#include "ui_tryConnectApp.h"

#include <QDebug>
#include <array>
#include <cstdlib>
#include <ctime>

namespace {
constexpr int linePitch = 40;
}

tryConnectApp::tryConnectApp(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::tryConnectApp>())
{
    ui->setupUi(this);
    // One line per half of the sentence, broken at its comma.
    ui->label_right1->setText(
        linesApart(ui->label_right1->text().replace(QLatin1String(", "), ",\n"), linePitch));
    generate_random_number();
    // setupUi has bound the slot by name already; the second run per click is meant.
    connect(ui->button_back, &QPushButton::clicked, this, &tryConnectApp::on_button_back_clicked);
}

tryConnectApp::~tryConnectApp() = default;

void tryConnectApp::generate_random_number()
{
    const std::array<QLabel *, 4> labels = {ui->label_num1, ui->label_num2, ui->label_num3,
                                            ui->label_num4};
    std::srand(static_cast<unsigned>(std::time(nullptr)));
    for (int i = 0; i < int(labels.size()); ++i) {
        const int digit = std::rand() % 10;
        qDebug("generate random number[%d] ...is %d", i, digit);
        labels[size_t(i)]->setText(tr("%1").arg(digit));
    }
}

void tryConnectApp::check_connect_result()
{
    connectResult::open(ui->stackedWidget, ui->page_connectResult);
}

void tryConnectApp::on_button_back_clicked()
{
    emit signal_backDefaultPage();
}
