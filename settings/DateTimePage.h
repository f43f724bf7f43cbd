#pragma once

#include "settings/TimeSpinners.h"

#include <QWidget>
#include <memory>

namespace Ui {
class DateTimePage;
}

/// Wheels for a date and a time of day. What they are turned to leaves the page nowhere.
///
/// The page exists once: it is built on first use and moves to the holder of whoever opens it.
/// Before every showing call Set24Hour() and list_init(). GUI thread.
class DateTimePage : public QWidget
{
    Q_OBJECT

public:
    /// The one page, null before its first use.
    static DateTimePage *instance;

    explicit DateTimePage(QWidget *parent = nullptr);
    ~DateTimePage() override;

    /// Chooses between an hour wheel of 24 and one of 12 hours beside a wheel for the half of the
    /// day. Takes effect with the next list_init().
    void Set24Hour(bool use);
    /// Loads the wheels afresh, turned to this moment.
    void list_init();

signals:
    void signal_backDefaultPage();

private slots:
    void on_button_back_clicked();

private:
    void placeSpinners();
    TimeSpinners timeSpinners() const;

    std::unique_ptr<Ui::DateTimePage> ui;
    bool is24Hour = true;
};
