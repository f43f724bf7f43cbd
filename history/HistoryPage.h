#pragma once

#include "history/LocalTime.h"
#include "pages/Quantity.h"

#include <QColor>
#include <QTimer>
#include <QWidget>
#include <memory>

class Blackboard;
class SlideLabel;

namespace Ui {
class HistoryPage;
}

/// Shows the history: a chart of today or of seven days, read by touch.
///
/// It shows a generated demonstration series, not the readings of the device. While it is visible
/// its days follow the clock. GUI thread.
class HistoryPage : public QWidget
{
    Q_OBJECT

public:
    explicit HistoryPage(QWidget *parent = nullptr,
                         LocalTime::Clock currentTime = LocalTime::systemClock);
    ~HistoryPage() override;

    /// Makes @p newQuantity, the number of a Quantity, the one that the next loadData() shows.
    void showing(int newQuantity);
    void hiding();
    /// Builds the series up to the present day and hands it to the chart.
    void loadData();

signals:
    /// Tells that the user wants to leave the page.
    void signal_backDefaultPage();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private slots:
    void on_button_back_clicked() { emit signal_backDefaultPage(); }
    void on_tabWidget_currentChanged(int index);
    void on_radio_day0_toggled(bool) { selectDay(0); }
    void on_radio_day1_toggled(bool) { selectDay(1); }
    void on_radio_day2_toggled(bool) { selectDay(2); }
    void on_radio_day3_toggled(bool) { selectDay(3); }
    void on_radio_day4_toggled(bool) { selectDay(4); }
    void on_radio_day5_toggled(bool) { selectDay(5); }
    void on_radio_day6_toggled(bool) { selectDay(6); }
    void onBlackboradTouch(float x, int time, float value, const QColor &valueColor,
                           const QString &unit);
    void onBlackboradRelease();
    void moveReadOut(float x, float value, const QColor &valueColor, const QString &unit);

private:
    void labelDays();
    void present(int mode);
    void selectDay(int day);

    LocalTime::Clock clock;
    int quantity = int(Quantity::Temperature);
    std::unique_ptr<Ui::HistoryPage> ui;
    SlideLabel *slideLabel;
    Blackboard *blackboard = nullptr;
    QTimer clockWatch;
};
