#pragma once

#include <QWidget>
#include <array>
#include <memory>
#include <vector>

class HistoryPage;
namespace Ui {
class BaseScene;
}

/// The transparent overlay of the main screen: side bar, tiles with the readings of the pages not
/// in view, and the holder of the history page. Presses on its own tiles, buttons and bars stay
/// here; elsewhere they go on to the page below. GUI thread.
class BaseScene : public QWidget
{
    Q_OBJECT

public:
    explicit BaseScene(QWidget *parent = nullptr);
    ~BaseScene() override;

    /// Shows the tiles and the caption that belong to @p page, the number of a Quantity. Any other
    /// number leaves them as they are. The history is told the number in any case.
    void change_currentPage(int page);

signals:
    void signal_jumpToOption();
    /// Tells that the tile of @p iPage, the number of a Quantity, was tapped.
    void signal_jumpPage(int iPage);

protected:
    void mousePressEvent(QMouseEvent *event) override;

private slots:
    void on_button_option_clicked();
    void on_button_history_clicked();
    void on_frame_humidity_clicked();
    void on_frame_pm_clicked();
    void on_frame_temperature_clicked();
    void jump_scenePage();
    void anHistory_finished();
    /// Readings for the tiles. invalidReading shows dashes and hides the tile's level and unit,
    /// which stay hidden.
    void update_pmData(int value);
    void update_tempData(int value);
    void update_humData(int value);

private:
    /// Connects the readings.
    friend class MainView;

    void connect_init();
    void animation_init();

    std::unique_ptr<Ui::BaseScene> ui;
    std::vector<QWidget *> ownGround;
    HistoryPage *historyPage = nullptr;
};
