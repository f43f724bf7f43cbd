#include "settings/setLanguagePage.h"

#include "settings/Restart.h"
#include "ui_setLanguagePage.h"

#include <QDir>
#include <QFile>

setLanguagePage::setLanguagePage(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::setLanguagePage>())
{
    // The back button is bound by its name. Bound a second time it would restart the device twice.
    ui->setupUi(this);
    ui->button_back->setGeometry(0, 0, 10, 10);
    show_language_list();
}

setLanguagePage::~setLanguagePage() = default;

void setLanguagePage::show_language_list()
{
    const std::pair<QString, QString> languages[] = {
        {tr("中文（简体）"), QStringLiteral("ZH_SIMPLE.qm")},
        {tr("中文（繁體）"), QStringLiteral("ZH_COMPLEX.qm")},
        {tr("English"), QStringLiteral("US.qm")},
    };
    for (const auto &[text, translationFile] : languages) {
        auto *item = new QListWidgetItem(text, ui->listWidget);
        item->setTextAlignment(Qt::AlignCenter);
        item->setData(Qt::WhatsThisRole, translationFile);
    }
}

void setLanguagePage::on_listWidget_itemClicked(QListWidgetItem * /*item*/) {}

void setLanguagePage::on_button_back_clicked()
{
    emit signal_backDefaultPage();
    writeLanguageFile();
    restartProgram();
}

void setLanguagePage::writeLanguageFile() const
{
    const QListWidgetItem *item = ui->listWidget->currentItem();
    if (item == nullptr)
        return;
    QFile file(QDir::currentPath() + QStringLiteral("/language.txt"));
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(item->data(Qt::WhatsThisRole).toString().toUtf8());
}
