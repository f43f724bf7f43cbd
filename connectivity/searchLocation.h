#pragma once

#include <QWidget>
#include <memory>

class KeyBorad;

namespace Ui {
class searchLocation;
}

/// Types the name of a place on the on-screen keyboard; its done key opens the list of results.
/// The typed text is not searched for. GUI thread.
class searchLocation : public QWidget
{
    Q_OBJECT

public:
    explicit searchLocation(QWidget *parent = nullptr);
    ~searchLocation() override;

public slots:
    void on_button_back_clicked();
    void back_default_page();
    void jump_searchResult_page();
    void delete_searchLocation();

signals:
    void signal_backDefaultPage();
    /// Never sent; for the search that will take the typed text.
    void signal_commit(const QString &strLocation);

private:
    std::unique_ptr<Ui::searchLocation> ui;
    KeyBorad *keyBorad;
};
