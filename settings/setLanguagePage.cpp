#include "settings/setLanguagePage.h"

#include "pages/Language.h"
#include "pages/TouchList.h"
#include "settings/Restart.h"
#include "ui_setLanguagePage.h"

setLanguagePage::setLanguagePage(QWidget *parent)
    : FormPage(parent)
{
    // The back button is bound by its name. Bound a second time it would restart the device twice.
    ui->setupUi(this);
    ui->button_back->setGeometry(0, 0, 10, 10);
    show_language_list();
    new TouchList(ui->listWidget);
}

void setLanguagePage::show_language_list()
{
    for (const Language &language : Language::all()) {
        auto *item = new QListWidgetItem(tr(language.title()), ui->listWidget);
        item->setTextAlignment(Qt::AlignCenter);
        item->setData(Qt::WhatsThisRole, language.translationFile());
    }
}

// Kept[list-click-hook]: the selection of the list is the choice.
void setLanguagePage::on_listWidget_itemClicked(QListWidgetItem * /*item*/) {}

void setLanguagePage::on_button_back_clicked()
{
    if (!ui)
        return;
    leave();
    if (const QListWidgetItem *item = ui->listWidget->currentItem())
        Language(item->data(Qt::WhatsThisRole).toString()).store();
    // Kept[restart-without-change]: whatever was chosen, and if nothing was.
    restartProgram();
}
