#include "simulator/FirmwareServer.h"
#include "walk/Stops.h"

using namespace std::chrono_literals;

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

// The first download stays at 46 per cent until it is cut off, the second one is there at once.
std::shared_ptr<simulator::FirmwareServer> firmwareServer()
{
    const simulator::FirmwareAnswer whole =
        simulator::firmwareAnswer(simulator::FirmwareFault::None);
    simulator::FirmwareAnswer part = whole;
    part.bodySize = whole.bodySize * 46 / 100;
    // A client reports progress no sooner than a tenth of a second after it began.
    part.chunkSize = part.bodySize / 2;
    part.pause = 300ms;
    part.ending = simulator::FirmwareAnswer::Ending::Stall;
    auto server = std::make_shared<simulator::FirmwareServer>(QList{part, whole});
    if (!server->listen())
        qFatal("no port for the firmware server: %s", qPrintable(server->errorString()));
    qputenv("ZELL_FIRMWARE_URL", server->url().toLatin1());
    return server;
}

std::vector<Stop> firmwareStops()
{
    const auto server = firmwareServer();
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
             server->dropClients();
             walk.waitFor(QStringLiteral("the retry page"),
                          [&walk] { return walk.sees(QStringLiteral("button_retry")); });
             walk.settle();
         }},
        {"firmware-after-retry", tapping({"button_retry"})},
        {"firmware-install",
         [](Walk &walk) {
             backAndOpen("option_updateFirmware")(walk);
             tapping({"button_checkUpdate", "button_update"})(walk);
             walk.waitFor(QStringLiteral("the install page"),
                          [&walk] { return walk.sees(QStringLiteral("label_installInfo")); });
             walk.settle();
         }},
    };
}
} // namespace

std::vector<Stop> connectivityStops()
{
    std::vector<Stop> stops;
    for (const auto &part : {wifiStops(), pairingStops(), locationStops(), firmwareStops()})
        stops.insert(stops.end(), part.begin(), part.end());
    return stops;
}
