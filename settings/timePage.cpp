#include "settings/timePage.h"

#include "settings/TimeSpinners.h"
#include "ui_timePage.h"

#include <QCoreApplication>

namespace {
// The start time that night mode shows.
const QTime shownStart{22, 30};

QString tabStyle(bool selected)
{
    return QStringLiteral("border-image: url(:/resource/images/optionPage/nightPattern/%1.png);\n"
                          "font: 24px;\n"
                          "color:%2;")
        .arg(selected ? QStringLiteral("button") : QStringLiteral("unbutton"),
             selected ? QStringLiteral("#212121") : QStringLiteral("#FFFFFF"));
}
} // namespace

timePage::timePage(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    // The page carries the title of the one that opens it.
    ui->label_title->setText(QCoreApplication::translate("nightModePage", "夜间模式"));
    selectFinish(false);
    initTimeControl();
}

void timePage::initTimeControl()
{
    const TimeSpinners spinners{ui->widget_hour, ui->widget_min, ui->widget_amp};
    spinners.load(use24Hour, shownStart);
    ui->widget_hour->setFocus();
}

void timePage::on_pushButton_start_clicked()
{
    selectFinish(false);
}

void timePage::on_pushButton_finish_clicked()
{
    selectFinish(true);
}

void timePage::selectFinish(bool finish)
{
    if (!ui)
        return;
    ui->pushButton_start->setStyleSheet(tabStyle(!finish));
    ui->pushButton_finish->setStyleSheet(tabStyle(finish));
    // Chosen already, it has nothing to answer.
    ui->pushButton_start->setAttribute(Qt::WA_TransparentForMouseEvents, !finish);
    ui->pushButton_finish->setAttribute(Qt::WA_TransparentForMouseEvents, finish);
}
