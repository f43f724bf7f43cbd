#pragma once

#include "pages/FormPage.h"

class QListWidgetItem;
namespace Ui {
class setLanguagePage;
}

/// The language page. Leaving it writes the language file and restarts the program, which reads it;
/// nothing changes before. GUI thread.
class setLanguagePage : public FormPage<Ui::setLanguagePage>
{
    Q_OBJECT

public:
    explicit setLanguagePage(QWidget *parent = nullptr);

    void on_button_back_clicked() override;

public slots:
    /// Does nothing.
    void on_listWidget_itemClicked(QListWidgetItem *item);

private:
    void show_language_list();
};
