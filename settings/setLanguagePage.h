#pragma once

#include <QWidget>
#include <memory>

class QListWidgetItem;
namespace Ui {
class setLanguagePage;
}

/// The language page. Leaving it writes the chosen translation's file name to "language.txt" in the
/// working directory and restarts the program, which loads it; nothing changes before. GUI thread.
class setLanguagePage : public QWidget
{
    Q_OBJECT

public:
    explicit setLanguagePage(QWidget *parent = nullptr);
    ~setLanguagePage() override;

signals:
    void signal_backDefaultPage();

private slots:
    /// Nothing: the selection of the list is the choice.
    void on_listWidget_itemClicked(QListWidgetItem *item);
    void on_button_back_clicked();

private:
    void show_language_list();
    void writeLanguageFile() const;

    std::unique_ptr<Ui::setLanguagePage> ui;
};
