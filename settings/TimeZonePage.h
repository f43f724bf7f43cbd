#pragma once

#include <QStringList>
#include <QWidget>
#include <memory>

namespace Ui {
class TimeZonePage;
}

/// The list of time zones. Choosing one, by a double tap, moves the check mark and no more.
///
/// Exists once: see instance. GUI thread.
class TimeZonePage : public QWidget
{
    Q_OBJECT

public:
    explicit TimeZonePage(QWidget *parent = nullptr);
    ~TimeZonePage() override;

    /// The one page, created by whoever opens it first; null before and once it is gone.
    static TimeZonePage *instance;

signals:
    void signal_backDefaultPage();

private slots:
    void on_button_back_clicked();
    void on_tableWidget_timeZone_cellDoubleClicked(int row, int column);

private:
    void readZones();
    void fillTable();

    std::unique_ptr<Ui::TimeZonePage> ui;
    QStringList zones;
    int chosenRow = -1;
};
