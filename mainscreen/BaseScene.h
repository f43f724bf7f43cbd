#pragma once

#include "pages/Quantity.h"

#include <QWidget>
#include <memory>
#include <vector>

class GetData;
class HistoryPage;
class OptionFrame;
namespace Ui {
class BaseScene;
}

/// Lies transparent over the main screen: side bar, tiles with the readings of the pages not in
/// view, and the holder of the history page. Presses on its own tiles, buttons and bars stay here;
/// elsewhere they go on to the page below. GUI thread.
class BaseScene : public QWidget
{
    Q_OBJECT

public:
    explicit BaseScene(QWidget *parent = nullptr);
    ~BaseScene() override;

    /// Shows the tiles and the caption that belong to @p page, the number of a Quantity. Any other
    /// number leaves them as they are. The history is told the number in any case.
    void change_currentPage(int page);

    /// Keeps the tile of @p quantity dark under the finger unless a tap on it leads anywhere now.
    void setLeading(Quantity quantity, bool leads);

    /// Shows on the tiles what @p scheduler reports.
    void follow(const GetData *scheduler);

    /// Tells whether the history covers the main screen, once it has slid in.
    bool showsHistory() const;

    /// Connects the way back from the history, once.
    void connect_init();
    /// Makes the animations that are kept for the motions of the overlay.
    void animation_init();

signals:
    /// Tells that showsHistory() has changed.
    void shownPageChanged();
    /// Asks for the settings.
    void signal_jumpToOption();
    /// Asks for the Wi-Fi page of the settings.
    void wifiAsked();
    /// Asks for a dark screen.
    void darknessAsked();
    /// Tells that the tile of @p iPage, the number of a Quantity, was tapped.
    void signal_jumpPage(int iPage);

protected:
    void mousePressEvent(QMouseEvent *event) override;

private slots:
    void on_button_option_clicked() { emit signal_jumpToOption(); }
    void on_button_wifi_clicked() { emit wifiAsked(); }
    void on_button_power_clicked() { emit darknessAsked(); }
    void on_button_history_clicked();
    void on_frame_humidity_clicked() { emit signal_jumpPage(int(Quantity::Humidity)); }
    void on_frame_pm_clicked() { emit signal_jumpPage(int(Quantity::Pm)); }
    void on_frame_temperature_clicked() { emit signal_jumpPage(int(Quantity::Temperature)); }
    void jump_scenePage();
    void anHistory_finished();
    /// Shows a reading on its tile; invalidReading shows dashes and takes the tile's level and unit
    /// away for good.
    void update_pmData(int value);
    void update_tempData(int value);
    void update_humData(int value);

private:
    OptionFrame *tileOf(Quantity quantity) const;

    std::unique_ptr<Ui::BaseScene> ui;
    std::vector<QWidget *> ownGround;
    HistoryPage *historyPage = nullptr;
};
