#include "testkit/Touch.h"
#include "walk/Stops.h"

namespace {
constexpr QPoint secondZone(300, 260);
constexpr QPoint secondLanguage(427, 280);
const Step back = tapping("button_back");

void chooseZone(Walk &walk)
{
    doubleTapAt(walk.screen(), secondZone);
}
} // namespace

std::vector<Stop> settingsStops()
{
    return {
        {"settings-menu", {tapping("button_option")}},
        {"settings-menu-end", {&Walk::scrollMenuToEnd}},
        {"settings-menu-fahrenheit", {tapping("checkBox_tempture")}},
        {"brightness-auto", {tapping("checkBox_tempture"), opening("option_adjustLight")}},
        {"brightness", {tapping("checkBox_adjustLight")}},
        {"night-mode", {back, opening("option_frame_nightPattern")}},
        {"night-mode-off", {tapping("checkBox_nightMode")}},
        {"night-time", {tapping("checkBox_nightMode"), tapping("button_startTime")}},
        {"night-time-finish", {tapping("pushButton_finish")}},
        {"settings-time", {back, back, opening("option_setTime")}},
        {"datetime-spinners", {tapping("button_dateTime")}},
        {"settings-time-12h", {back, tapping("checkBox_24Hours")}},
        {"datetime-spinners-12h", {tapping("button_dateTime")}},
        {"time-zone-start", {back, tapping("button_timeZone")}},
        {"time-zone", {chooseZone}},
        {"factory-reset", {back, back, opening("option_resetFactory")}},
        {"factory-reset-confirm", {tapping("button_confirm")}},
        {"factory-reset-cancelled", {tapping("button_cancel")}},
    };
}

std::vector<Stop> languageStops()
{
    return {
        {"language", {back, opening("option_frame_language")}},
        {"language-chosen", {tappingAt(secondLanguage)}},
    };
}
