#include "settings/timePage.h"

#include "settings/TimeSpinners.h"
#include "ui_timePage.h"

#include <QCoreApplication>

namespace {
QString tabStyle(bool selected)
{
    return QStringLiteral("border-image: url(:/resource/images/optionPage/nightPattern/%1.png);\n"
                          "font: 24px;\n"
                          "color:%2;")
        .arg(selected ? QStringLiteral("button") : QStringLiteral("unbutton"),
             selected ? QStringLiteral("#212121") : QStringLiteral("#FFFFFF"));
}

/// Where the wheels stand when the page opens: the start time that night mode shows.
const QTime shownStart{22, 30};
} // namespace

timePage::timePage(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::timePage>())
{
    ui->setupUi(this);
    // The page carries the title of the one that opens it.
    ui->label_title->setText(QCoreApplication::translate("nightModePage", "夜间模式"));
    initTimeControl();
}

timePage::~timePage() = default;

void timePage::initTimeControl()
{
    const TimeSpinners spinners{ui->widget_hour, ui->widget_min, ui->widget_amp};
    spinners.load(use24Hour, shownStart);
    ui->widget_hour->setFocus();
}

void timePage::on_pushButton_start_clicked()
{
    ui->pushButton_start->setStyleSheet(tabStyle(true));
    ui->pushButton_finish->setStyleSheet(tabStyle(false));
}

void timePage::on_pushButton_finish_clicked()
{
    ui->pushButton_start->setStyleSheet(tabStyle(false));
    ui->pushButton_finish->setStyleSheet(tabStyle(true));
}

void timePage::on_button_back_clicked()
{
    emit signal_backDefaultPage();
}
