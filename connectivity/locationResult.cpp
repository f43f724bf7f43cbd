#include "connectivity/locationResult.h"

#include "connectivity/LineCaret.h"
#include "pages/TouchList.h"
#include "ui_locationResult.h"

#include <QScrollBar>

namespace {
constexpr int textPixels = 24;

// Shows where the list stands; it is too narrow for a finger.
void mirror(QScrollBar *source, QScrollBar *thumb)
{
    QObject::connect(source, &QScrollBar::rangeChanged, thumb, [source, thumb] {
        thumb->setPageStep(source->pageStep());
        thumb->setRange(source->minimum(), source->maximum());
    });
    QObject::connect(source, &QScrollBar::valueChanged, thumb, &QScrollBar::setValue);
}
} // namespace

locationResult::locationResult(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::locationResult>())
{
    ui->setupUi(this);
    caret = new LineCaret(ui->lineEdit_location);
    caret->hide();
    ui->listWidget->hide();
    ui->label_noResult->hide();
    ui->info_noResult->hide();
    ui->scrollBar_result->setAttribute(Qt::WA_TransparentForMouseEvents);
    mirror(ui->listWidget->verticalScrollBar(), ui->scrollBar_result);
    new TouchList(ui->listWidget);
    show_locate_result();
    connect(ui->button_deleteLocation, &QPushButton::clicked, this,
            &locationResult::delete_searchLocation);
}

locationResult::~locationResult() = default;

void locationResult::show_locate_result()
{
    ui->listWidget->show();
    ui->scrollBar_result->show();
    ui->label_noResult->hide();
    ui->info_noResult->hide();
    QFont font = ui->listWidget->font();
    font.setPixelSize(textPixels);
    ui->listWidget->setFont(font);
    ui->listWidget->addItems({tr("Beirut,Berut,LB"), tr("北京，中国"),
                              tr("Beigem,Vlaams Brabant,BE"), tr("北格，山西，中国"),
                              tr("北渡，上海，中国"), tr("北格1，山西，中国"),
                              tr("北渡1，上海，中国")});
}

void locationResult::on_button_back_clicked()
{
    emit signal_backDefaultPage();
}

void locationResult::delete_searchLocation()
{
    ui->lineEdit_location->clear();
    caret->show();
    ui->listWidget->hide();
    ui->scrollBar_result->hide();
    ui->label_noResult->show();
    ui->info_noResult->show();
}
