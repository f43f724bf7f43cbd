#pragma once

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
    /// Takes @p iSliderValue, 7 ... 257, to the backlight. At the two ends of the slider the level
    /// moved back to, 10 or 255, goes out first and the end itself after it.
    void light_valueChanged(int iSliderValue);
    /// One poll of the light sensor. What is no whole number changes nothing.
    void cause_lightUpdate();

private:
    enum class Groove { Low, Normal, Full };
    void styleSlider(Groove wanted);

    std::unique_ptr<Ui::adjustLight> ui;
    QTimer sensorTimer{this};
    std::optional<Groove> groove;
    bool leftBehind = false;
    bool sensorFailed = false;
};
