#include "settings/SetTimePage.h"

#include "pages/SwitchCaptions.h"
#include "settings/DateTimePage.h"
#include "settings/TimeSpinners.h"
#include "settings/TimeZonePage.h"
#include "ui_SetTimePage.h"

#include <QDateTime>

SetTimePage::SetTimePage(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    captionSwitch(ui->checkBox_24Hours, ui->button_close, ui->button_on);
    captionSwitch(ui->checkBox_AutoGetTime, ui->button_close_2, ui->button_on_2);
    for (PageHolder *holder : {ui->page_dateTime, ui->page_timeZone})
        connect(holder, &PageHolder::signal_pageLeft, this, &SetTimePage::back_default_page);
    // Set in the first painting, it would have the row painted twice.
    showTime();
    readySpinnersSoon();
}

void SetTimePage::paintEvent(QPaintEvent *event)
{
    FormPage::paintEvent(event);
    if (ui)
        showTime();
}

void SetTimePage::showTime()
{
    const QString format = ui->checkBox_24Hours->isChecked()
                               ? QStringLiteral("yyyy-MM-dd HH:mm")
                               : QStringLiteral("yyyy-MM-dd hh:mm AP");
    // A new text paints this page once more; the same text again does not.
    ui->button_currentDateTime->setText(QDateTime::currentDateTime().toString(format));
}

// Kept[clock-not-set]: what the wheels and the list are turned to is not asked for.
void SetTimePage::on_button_dateTime_clicked()
{
    if (!ui)
        return;
    auto *page = ui->page_dateTime->bring<DateTimePage>();
    page->Set24Hour(ui->checkBox_24Hours->isChecked());
    page->list_init();
    ui->page_dateTime->present(page);
}

void SetTimePage::on_button_timeZone_clicked()
{
    if (ui)
        ui->page_timeZone->present(ui->page_timeZone->bring<TimeZonePage>());
}
