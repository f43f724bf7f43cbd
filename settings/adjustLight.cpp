#include "settings/adjustLight.h"

#include "device/DevicePath.h"
#include "pages/SwitchCaptions.h"
#include "settings/Backlight.h"
#include "ui_adjustLight.h"

#include <QDebug>
#include <QFile>
#include <algorithm>
#include <chrono>
#include <optional>

namespace {
constexpr std::chrono::seconds sensorInterval{1};
constexpr int lowLimit = 8;
constexpr int lowLevel = 10;
constexpr int fullLimit = 257;
constexpr int fullLevel = 255;

std::optional<int> readLightSensor()
{
    constexpr qint64 longestNumber = 64;
    QFile file(devicePath(QStringLiteral("/sys/devices/virtual/input/input3/light_val")));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return std::nullopt;
    bool isNumber = false;
    const int level = file.read(longestNumber).trimmed().toInt(&isNumber);
    return isNumber ? std::optional(level) : std::nullopt;
}

QString sliderStyle(const char *left, const char *right)
{
    return QStringLiteral(
               "QSlider::groove { background: transparent; }"
               "QSlider::handle { width: 72px;"
               " border-image: url(:/resource/images/optionPage/adjustLight/sliderHandle.png); }"
               "QSlider::sub-page { margin: 30px 0px 30px 36px; border-width: 0px 6px;"
               " border-image: url(:/resource/images/optionPage/adjustLight/%1) 0 6; }"
               "QSlider::add-page { margin: 30px 36px 30px 0px; border-width: 0px 6px;"
               " border-image: url(:/resource/images/optionPage/adjustLight/%2) 0 6; }")
        .arg(QLatin1String(left), QLatin1String(right));
}
} // namespace

adjustLight::adjustLight(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::adjustLight>())
{
    ui->setupUi(this);
    styleSlider(Groove::Normal);
    captionSwitch(ui->checkBox_adjustLight, ui->button_close, ui->button_on);

    connect(&sensorTimer, &QTimer::timeout, this, &adjustLight::cause_lightUpdate);
    sensorTimer.start(sensorInterval);
    ui->checkBox_adjustLight->setChecked(true);
    check_lightAdjust();
    connect(ui->checkBox_adjustLight, &QCheckBox::clicked, this, &adjustLight::check_lightAdjust);
    connect(ui->slider_light, &QSlider::valueChanged, this, &adjustLight::light_valueChanged);
}

adjustLight::~adjustLight() = default;

void adjustLight::check_lightAdjust()
{
    const bool automatic = ui->checkBox_adjustLight->isChecked();
    ui->slider_light->setEnabled(!automatic);
    ui->frame_veil->setVisible(automatic);
}

void adjustLight::on_button_back_clicked()
{
    leftBehind = true;
    emit signal_backDefaultPage();
}

void adjustLight::light_valueChanged(int iSliderValue)
{
    ui->slider_light->setEnabled(!ui->checkBox_adjustLight->isChecked());
    qDebug("iSliderValue is %d", iSliderValue);
    if (iSliderValue < lowLimit) {
        ui->slider_light->setValue(lowLevel);
        styleSlider(Groove::Low);
    } else if (iSliderValue >= fullLimit) {
        ui->slider_light->setValue(fullLevel);
        styleSlider(Groove::Full);
    } else if (iSliderValue > lowLevel) {
        styleSlider(Groove::Normal);
    }
    setBacklight(iSliderValue);
}

void adjustLight::cause_lightUpdate()
{
    if (!ui->checkBox_adjustLight->isChecked())
        return;
    const std::optional<int> level = readLightSensor();
    if (!level) {
        if (!std::exchange(sensorFailed, true))
            qDebug("light sensor gives no number");
        return;
    }
    sensorFailed = false;
    const QSlider *slider = ui->slider_light;
    // Every page left behind follows the sensor for ever. A level that the backlight has already is
    // not sent once more by each of them, or a long evening of visits would hold up the device.
    if (leftBehind && std::clamp(*level, slider->minimum(), slider->maximum()) == backlightLevel())
        return;
    if (*level != slider->value())
        ui->slider_light->setValue(*level);
}

void adjustLight::styleSlider(Groove wanted)
{
    if (groove == wanted)
        return;
    groove = wanted;
    const char *const left = wanted == Groove::Low ? "sliderBackground2.png" : "sliderFront.png";
    const char *const right =
        wanted == Groove::Full ? "sliderBackground2.png" : "sliderBackground.png";
    ui->slider_light->setStyleSheet(sliderStyle(left, right));
}
