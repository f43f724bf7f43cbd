#include "connectivity/locationResult.h"

#include "connectivity/LineCaret.h"
#include "pages/DragScroll.h"
#include "pages/RowLight.h"
#include "pages/ScrollThumb.h"
#include "ui_locationResult.h"

namespace {
constexpr int textPixels = 24;
} // namespace

locationResult::locationResult(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    caret = new LineCaret(ui->lineEdit_location);
    caret->hide();
    showScroll(ui->listWidget, ui->scrollBar_result);
    light = new RowLight(ui->listWidget, {}, this);
    scroll = new DragScroll(ui->listWidget, this);
    ui->listWidget->viewport()->installEventFilter(this);
    show_locate_result();
    connect(ui->button_deleteLocation, &QPushButton::clicked, this,
            &locationResult::delete_searchLocation);
}

bool locationResult::eventFilter(QObject *watched, QEvent *event)
{
    // What the finger does ends here: the list would mark places and scroll by itself.
    if (ui && watched == ui->listWidget->viewport()) {
        light->follow(event);
        if (scroll->follow(watched, event))
            return true;
    }
    return FormPage::eventFilter(watched, event);
}

void locationResult::show_locate_result()
{
    if (!ui)
        return;
    showPlaces(true);
    QFont font = ui->listWidget->font();
    font.setPixelSize(textPixels);
    ui->listWidget->setFont(font);
    // Kept[sample-places]: whatever was searched for.
    ui->listWidget->addItems({tr("Beirut,Berut,LB"), tr("北京，中国"),
                              tr("Beigem,Vlaams Brabant,BE"), tr("北格，山西，中国"),
                              tr("北渡，上海，中国"), tr("北格1，山西，中国"),
                              tr("北渡1，上海，中国")});
}

void locationResult::delete_searchLocation()
{
    if (!ui)
        return;
    ui->lineEdit_location->clear();
    ui->lineEdit_location->setPlaceholderText(tr("城市"));
    caret->show();
    showPlaces(false);
}

void locationResult::showPlaces(bool found)
{
    ui->listWidget->setVisible(found);
    ui->scrollBar_result->setVisible(found);
    ui->label_noResult->setVisible(!found);
    ui->info_noResult->setVisible(!found);
}
