#include "walk/FirmwareServer.h"
#include "walk/Stops.h"

namespace {
constexpr QPoint firstNetwork(427, 120);
constexpr QPoint secondNetwork(427, 200);

void chooseNetwork(Walk &walk, const QPoint &row)
{
    walk.tapAt(row);
    walk.waitFor(QStringLiteral("the password page"),
                 [&walk] { return walk.sees(QStringLiteral("button_enter")); });
    walk.settle();
}

std::vector<Stop> wifiStops()
{
    return {
        {"wifi-list", backAndOpen("option_setWifi")},
        {"wifi-list-connecting",
         [](Walk &walk) {
             chooseNetwork(walk, firstNetwork);
             tapping({"button_back"})(walk);
             walk.keepPictureSoon();
             chooseNetwork(walk, secondNetwork);
         }},
        {"wifi-password", [](Walk &walk) { walk.type(QStringLiteral("zell2016")); }},
        {"wifi-password-pressed", [](Walk &walk) { walk.pressKey(QLatin1Char('g')); }},
        {"wifi-password-upper",
         [](Walk &walk) {
             walk.release();
             tapping({"button_shiftNormal"})(walk);
         }},
        {"wifi-password-symbol", tapping({"button_symbol_2"})},
        {"wifi-result-success", calling("passwordKeyboard", "jump_wifiConnectResult_page")},
        {"wifi-result-fail",
         [](Walk &walk) {
             walk.rearrange(
                 "label_success", {"label_success", "label_infoSuccess", "button_forgetSuccess"},
                 {"label_fail", "label_infoFail", "button_forgetFail", "button_retryFail"});
         }},
        {"wifi-none",
         [](Walk &walk) {
             walk.restartAtMenu();
             walk.setNetworks({});
             walk.openTile(QStringLiteral("option_setWifi"));
         }},
    };
}

std::vector<Stop> pairingStops()
{
    return {
        {"app-page", backAndOpen("option_connectApp")},
        {"pairing-number", tapping({"button_connectApp"})},
        {"unpair-confirm",
         [](Walk &walk) {
             backAndOpen("option_connectApp")(walk);
             calling("connectApp", "jump_disconnectApp_page")(walk);
         }},
        {"pairing-result-waiting", tapping({"button_confirm"})},
        {"pairing-result",
         [](Walk &walk) {
             walk.rearrange("label_background", {},
                            {"icon_connectSuccess", "label_connectSuccess"});
         }},
    };
}

std::vector<Stop> locationStops()
{
    return {
        {"location",
         [](Walk &walk) {
             walk.restartAtMenu();
             walk.openTile(QStringLiteral("option_setLocation"));
         }},
        {"location-search",
         [](Walk &walk) {
             tapping({"button_search"})(walk);
             walk.type(QStringLiteral("bei"));
         }},
        {"location-result", tapping({"button_enter"})},
        {"location-no-result", tapping({"button_deleteLocation"})},
        {"location-search-again", tapping({"button_back"})},
    };
}

std::vector<Stop> firmwareStops(const std::shared_ptr<FirmwareServer> &server)
{
    return {
        {"firmware-idle", backAndOpen("option_updateFirmware")},
        {"firmware-found", tapping({"button_checkUpdate"})},
        {"firmware-downloading",
         [](Walk &walk) {
             walk.tap(QStringLiteral("button_update"));
             walk.waitFor(QStringLiteral("progress"),
                          [&walk] { return walk.textOf("label_process").contains("46"); });
             walk.settle();
         }},
        {"firmware-retry",
         [server](Walk &walk) {
             server->drop();
             walk.waitFor(QStringLiteral("the retry page"),
                          [&walk] { return walk.sees(QStringLiteral("button_retry")); });
             walk.settle();
         }},
        {"firmware-after-retry", tapping({"button_retry"})},
        {"firmware-install",
         [server](Walk &walk) {
             backAndOpen("option_updateFirmware")(walk);
             tapping({"button_checkUpdate", "button_update"})(walk);
             server->finish();
             walk.waitFor(QStringLiteral("the install page"),
                          [&walk] { return walk.sees(QStringLiteral("label_installInfo")); });
             walk.settle();
         }},
    };
}
} // namespace

std::vector<Stop> connectivityStops()
{
    const auto server = std::make_shared<FirmwareServer>();
    std::vector<Stop> stops;
    for (const auto &part : {wifiStops(), pairingStops(), locationStops(), firmwareStops(server)})
        stops.insert(stops.end(), part.begin(), part.end());
    return stops;
}
