#pragma once

#include "pages/FormPage.h"
#include "settings/BacklightControl.h"

#include <QTimer>
#include <optional>

namespace Ui {
class adjustLight;
}

/// The brightness page: the backlight follows a slider, or once a second the ambient light sensor.
///
/// Starts in automatic mode. Pages of earlier visits keep on polling. GUI thread.
class adjustLight : public FormPage<Ui::adjustLight>
{
    Q_OBJECT

public:
    explicit adjustLight(QWidget *parent = nullptr);

    /// Lets the handle jump under the finger.
    bool eventFilter(QObject *watched, QEvent *event) override;

    void on_button_back_clicked() override;

public slots:
    void check_lightAdjust();
    /// Takes @p iSliderValue to the backlight, see BacklightControl::setLevel().
    void light_valueChanged(int iSliderValue);
    /// Polls the light sensor once.
    void cause_lightUpdate();

protected:
    void beforeEmptying() override;

private:
    void styleSlider(BacklightLevel::Groove wanted);

    BacklightControl light{this};
    QTimer sensorTimer{this};
    std::optional<BacklightLevel::Groove> groove;
};
