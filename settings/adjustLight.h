#pragma once

#include "settings/BacklightControl.h"

#include <QTimer>
#include <QWidget>
#include <memory>
#include <optional>

namespace Ui {
class adjustLight;
}

/// The brightness page: the backlight follows a slider, or once a second the ambient light sensor.
///
/// Starts in automatic mode. Pages of earlier visits keep on polling. GUI thread.
class adjustLight : public QWidget
{
    Q_OBJECT

public:
    explicit adjustLight(QWidget *parent = nullptr);
    ~adjustLight() override;

signals:
    void signal_backDefaultPage();

private slots:
    void check_lightAdjust();
    void on_button_back_clicked();
    /// Takes @p iSliderValue to the backlight, see BacklightControl::setLevel().
    void light_valueChanged(int iSliderValue);
    /// One poll of the light sensor. Runs in pages left behind as well, whose form is gone.
    void cause_lightUpdate();

private:
    void styleSlider(BacklightLevel::Groove wanted);

    std::unique_ptr<Ui::adjustLight> ui;
    BacklightControl light{this};
    QTimer sensorTimer{this};
    std::optional<BacklightLevel::Groove> groove;
};
