#include "settings/SetTimePage.h"

#include "pages/PagePattern.h"
#include "pages/SwitchCaptions.h"
#include "settings/DateTimePage.h"
#include "settings/TimeSpinners.h"
#include "settings/TimeZonePage.h"
#include "ui_SetTimePage.h"

#include <QDateTime>
#include <array>

namespace {
/// How the present moment is shown: with 24 hours, with 12 hours.
const std::array<QString, 2> displayFormats = {QStringLiteral("yyyy-MM-dd HH:mm"),
                                               QStringLiteral("yyyy-MM-dd hh:mm AP")};
} // namespace

SetTimePage::SetTimePage(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::SetTimePage>())
{
    ui->setupUi(this);
    captionSwitch(ui->checkBox_24Hours, ui->button_close, ui->button_on);
    captionSwitch(ui->checkBox_AutoGetTime, ui->button_close_2, ui->button_on_2);
    readySpinnersSoon();
}

SetTimePage::~SetTimePage() = default;

void SetTimePage::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    const QString &format = displayFormats[ui->checkBox_24Hours->isChecked() ? 0 : 1];
    // A new text paints this page once more; the same text again does not.
    ui->button_currentDateTime->setText(QDateTime::currentDateTime().toString(format));
}

void SetTimePage::on_button_dateTime_clicked()
{
    auto *page = singlePage<DateTimePage>(ui->page_dateTime);
    page->Set24Hour(ui->checkBox_24Hours->isChecked());
    page->list_init();
    showPage(page, this, ui->stackedWidget, ui->page_dateTime, &SetTimePage::back_default_page);
}

void SetTimePage::on_button_timeZone_clicked()
{
    showPage(singlePage<TimeZonePage>(ui->page_timeZone), this, ui->stackedWidget,
             ui->page_timeZone, &SetTimePage::back_default_page);
}

void SetTimePage::back_default_page()
{
    ui->stackedWidget->setCurrentWidget(ui->frame_default);
}

void SetTimePage::on_button_back_clicked()
{
    handOnSinglePage<DateTimePage>(this);
    handOnSinglePage<TimeZonePage>(this);
    emit signal_backDefaultPage();
}
