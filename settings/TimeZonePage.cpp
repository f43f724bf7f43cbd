#include "settings/TimeZonePage.h"

#include "pages/DragScroll.h"
#include "pages/RowLight.h"
#include "settings/TimeZoneItemDelegate.h"
#include "ui_TimeZonePage.h"

#include <QFile>
#include <QTextStream>
#include <chrono>

namespace {
using namespace std::chrono_literals;

// A zone is chosen by a second tap: until then it says "this one, again".
constexpr auto lightAfterTap = 600ms;
constexpr int rowHeight = 120;
constexpr int zoneWidth = 706;
constexpr int checkMarkWidth = 148;
} // namespace

TimeZonePage::TimeZonePage(QWidget *parent)
    : SinglePage(parent)
{
    ui->setupUi(this);
    fillTable();
    light = new RowLight(ui->tableWidget_timeZone, lightAfterTap, this);
    scroll = new DragScroll(ui->tableWidget_timeZone, this);
    ui->tableWidget_timeZone->viewport()->installEventFilter(this);
}

bool TimeZonePage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->tableWidget_timeZone->viewport()) {
        light->follow(event);
        scroll->follow(watched, event);
    }
    return SinglePage::eventFilter(watched, event);
}

void TimeZonePage::fillTable()
{
    QTableWidget *table = ui->tableWidget_timeZone;
    table->setColumnCount(2);
    table->setItemDelegate(new TimeZoneItemDelegate(
        QPixmap(QStringLiteral("://resource/images/optionPage/checked.png")), this));
    table->setColumnWidth(0, zoneWidth);
    table->setColumnWidth(1, checkMarkWidth);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    QFile file(QStringLiteral(":resource/TimeZone.txt"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    QTextStream lines(&file);
    while (!lines.atEnd()) {
        const int row = table->rowCount();
        table->insertRow(row);
        table->setRowHeight(row, rowHeight);
        table->setItem(row, 0, new QTableWidgetItem(lines.readLine()));
        table->setItem(row, 1, new QTableWidgetItem(QStringLiteral("0")));
    }
}

void TimeZonePage::on_tableWidget_timeZone_cellDoubleClicked(int row, int /*column*/)
{
    for (int other = 0; other < ui->tableWidget_timeZone->rowCount(); ++other)
        ui->tableWidget_timeZone->item(other, 1)->setText(QString::number(int(other == row)));
}
