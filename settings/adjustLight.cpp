#include "settings/adjustLight.h"

#include "pages/SwitchCaptions.h"
#include "ui_adjustLight.h"

#include <QMouseEvent>
#include <QPointer>
#include <QStyle>
#include <chrono>

using BacklightLevel::Groove;

namespace {
using namespace std::chrono_literals;

constexpr auto sensorInterval = 1s;
constexpr int handleWidth = 72;
} // namespace

adjustLight::adjustLight(QWidget *parent)
    : FormPage(parent)
{
    ui->setupUi(this);
    QSlider *slider = ui->slider_light;
    slider->setRange(BacklightLevel::lowest, BacklightLevel::highest);
    slider->setValue(light.level());
    slider->installEventFilter(this);
    styleSlider(Groove::Normal);
    captionSwitch(ui->checkBox_adjustLight, ui->button_close, ui->button_on);

    // Not by way of the page, which does nothing any more once it is emptied: the light goes on.
    connect(&sensorTimer, &QTimer::timeout, &light, &BacklightControl::followSensor);
    sensorTimer.start(sensorInterval);
    ui->checkBox_adjustLight->setChecked(light.isAutomatic());
    check_lightAdjust();
    connect(ui->checkBox_adjustLight, &QCheckBox::clicked, this, &adjustLight::check_lightAdjust);
    connect(slider, &QSlider::valueChanged, this, &adjustLight::light_valueChanged);
    // The slider as context: these end with it, the light goes on.
    connect(&light, &BacklightControl::levelChanged, slider, [slider](int level) {
        const QSignalBlocker blocker(slider);
        slider->setValue(level);
    });
    connect(&light, &BacklightControl::grooveChanged, slider,
            [this](Groove wanted) { styleSlider(wanted); });
}

bool adjustLight::eventFilter(QObject *watched, QEvent *event)
{
    QSlider *slider = ui ? ui->slider_light : nullptr;
    const bool isPress = slider && watched == slider && slider->isEnabled() &&
                         event->type() == QEvent::MouseButtonPress;
    const auto *press = isPress ? static_cast<QMouseEvent *>(event) : nullptr;
    if (press && press->button() == Qt::LeftButton) {
        const int x = press->position().toPoint().x();
        // The slider itself would go one page nearer; under the finger, its handle is dragged on.
        slider->setValue(QStyle::sliderValueFromPosition(slider->minimum(), slider->maximum(),
                                                         x - handleWidth / 2,
                                                         slider->width() - handleWidth));
    }
    return FormPage::eventFilter(watched, event);
}

void adjustLight::check_lightAdjust()
{
    if (!ui)
        return;
    light.setAutomatic(ui->checkBox_adjustLight->isChecked());
    ui->slider_light->setEnabled(!light.isAutomatic());
    ui->frame_veil->setVisible(light.isAutomatic());
}

void adjustLight::beforeEmptying()
{
    light.leaveBehind();
    // Those that follow the sensor all do the same: the one left last goes on for the others.
    static QPointer<adjustLight> follower;
    if (light.isAutomatic()) {
        if (follower)
            follower->sensorTimer.stop();
        follower = this;
    } else {
        sensorTimer.stop();
    }
}

void adjustLight::on_button_back_clicked()
{
    light.leaveBehind();
    leave();
}

void adjustLight::light_valueChanged(int iSliderValue)
{
    if (!ui)
        return;
    ui->slider_light->setEnabled(!light.isAutomatic());
    light.setLevel(iSliderValue);
}

void adjustLight::cause_lightUpdate()
{
    if (ui)
        light.followSensor();
}

void adjustLight::styleSlider(Groove wanted)
{
    if (groove == wanted)
        return;
    groove = wanted;
    const char *const left = wanted == Groove::Low ? "sliderBackground2.png" : "sliderFront.png";
    const char *const right =
        wanted == Groove::Full ? "sliderBackground2.png" : "sliderBackground.png";
    // Kept[handle-border]: its width is taken back at once, as a negative one tears the handle
    // apart.
    ui->slider_light->setStyleSheet(
        QStringLiteral(
            "QSlider::groove { background: transparent; }"
            "QSlider::handle { width: %3px; border: -36px solid #212121; border-width: 0px;"
            " border-image: url(:/resource/images/optionPage/adjustLight/sliderHandle.png); }"
            "QSlider::sub-page { margin: 30px 0px 30px 36px; border-width: 0px 6px;"
            " border-image: url(:/resource/images/optionPage/adjustLight/%1) 0 6; }"
            "QSlider::add-page { margin: 30px 36px 30px 0px; border-width: 0px 6px;"
            " border-image: url(:/resource/images/optionPage/adjustLight/%2) 0 6; }")
            .arg(QLatin1String(left), QLatin1String(right))
            .arg(handleWidth));
}
