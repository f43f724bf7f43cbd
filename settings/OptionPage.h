#pragma once

#include <QWidget>
#include <memory>

class DragScroll;

namespace Ui {
class OptionPage;
}

/// The settings area: a scrolling grid of tiles, one per setting, and behind each tile the holder
/// in which its page is built afresh on every visit. GUI thread.
class OptionPage : public QWidget
{
    Q_OBJECT

public:
    explicit OptionPage(QWidget *parent = nullptr);
    ~OptionPage() override;

    /// Follows the finger on the menu.
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// The user leaves the settings area.
    void signal_back_lastPage();

public slots:
    /// Tells whether the menu itself is showing, and not the page of a setting.
    bool is_allowed_slide();
    void jump_setWifi_page();
    void jump_setTime_page();
    void jump_setNightPatternSlt();
    void jump_adjustLight_page();
    void jump_setLanguage_page();
    void jump_setLocation_page();
    void jump_connectApp_page();
    void jump_updateFirmware_page();
    void jump_resetFactory_page();
    void back_default_page();
    void on_button_back_clicked();
    void option_setTempture();

private:
    void setup_signalWithSlot();

    std::unique_ptr<Ui::OptionPage> ui;
    DragScroll *scroll;
};
