#include "walk/Stops.h"

namespace {
constexpr QPoint secondZone(300, 260);
constexpr QPoint secondLanguage(427, 280);
} // namespace

std::vector<Stop> settingsStops()
{
    return {
        {"settings-menu", tapping({"button_option"})},
        {"settings-menu-end", [](Walk &walk) { walk.scrollMenuToEnd(); }},
        {"settings-menu-fahrenheit", tapping({"checkBox_tempture"})},
        {"brightness-auto",
         [](Walk &walk) {
             tapping({"checkBox_tempture"})(walk);
             walk.openTile(QStringLiteral("option_adjustLight"));
         }},
        {"brightness", tapping({"checkBox_adjustLight"})},
        {"night-mode", backAndOpen("option_frame_nightPattern")},
        {"night-mode-off", tapping({"checkBox_nightMode"})},
        {"night-time", tapping({"checkBox_nightMode", "button_startTime"})},
        {"night-time-finish", tapping({"pushButton_finish"})},
        {"settings-time",
         [](Walk &walk) {
             tapping({"button_back"})(walk);
             backAndOpen("option_setTime")(walk);
         }},
        {"datetime-spinners", tapping({"button_dateTime"})},
        {"settings-time-12h", tapping({"button_back", "checkBox_24Hours"})},
        {"datetime-spinners-12h", tapping({"button_dateTime"})},
        {"time-zone-start", tapping({"button_back", "button_timeZone"})},
        {"time-zone",
         [](Walk &walk) {
             walk.doubleTapAt(secondZone);
             walk.settle();
         }},
        {"factory-reset",
         [](Walk &walk) {
             tapping({"button_back"})(walk);
             backAndOpen("option_resetFactory")(walk);
         }},
        {"factory-reset-confirm", tapping({"button_confirm"})},
        {"factory-reset-cancelled", tapping({"button_cancel"})},
    };
}

std::vector<Stop> languageStops()
{
    return {
        {"language", backAndOpen("option_frame_language")},
        {"language-chosen",
         [](Walk &walk) {
             walk.tapAt(secondLanguage);
             walk.settle();
         }},
    };
}
