#include "simulator/FirmwareServer.h"
#include "walk/Stops.h"

using namespace std::chrono_literals;

namespace {
constexpr QPoint firstNetwork(427, 120);
constexpr QPoint secondNetwork(427, 200);
const Step back = tapping("button_back");

void chooseNetworkMeanwhile(Walk &walk)
{
    walk.keepPictureSoon();
    walk.tapAt(secondNetwork);
}

void showFailure(Walk &walk)
{
    walk.rearrange("label_success", {"label_success", "label_infoSuccess", "button_forgetSuccess"},
                   {"label_fail", "label_infoFail", "button_forgetFail", "button_retryFail"});
}

void showPairing(Walk &walk)
{
    walk.rearrange("label_background", {}, {"icon_connectSuccess", "label_connectSuccess"});
}

void loseNetworks(Walk &walk)
{
    walk.setNetworks({});
}

void findLongName(Walk &walk)
{
    walk.setNetworks({QStringLiteral("<b>The network of the house at the end of the street</b>")});
}

Step reporting(qint64 received, qint64 total)
{
    return [received, total](Walk &walk) {
        QMetaObject::invokeMethod(walk.find(QStringLiteral("updateFirmware")),
                                  "on_downloadProgress", Q_ARG(qint64, received),
                                  Q_ARG(qint64, total));
    };
}

void awaitProgress(Walk &walk)
{
    walk.waitFor(QStringLiteral("progress"),
                 [&walk] { return walk.textOf("label_process").contains("46"); });
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
    const Step cutOff = [server = firmwareServer()](Walk &) { server->dropClients(); };
    return {
        {"firmware-idle", {back, opening("option_updateFirmware")}},
        {"firmware-found", {tapping("button_checkUpdate")}},
        {"firmware-downloading", {tapping("button_update"), awaitProgress}},
        {"firmware-downloading-begun", {reporting(1, 1000)}},
        {"firmware-downloading-done", {reporting(1, 1)}},
        {"firmware-retry", {cutOff, seeing("button_retry")}},
        {"firmware-after-retry", {tapping("button_retry")}},
        {"firmware-install",
         {back, opening("option_updateFirmware"), tapping("button_checkUpdate"),
          tapping("button_update"), seeing("label_installInfo")}},
    };
}
} // namespace

std::vector<Stop> connectivityStops()
{
    const std::vector<Stop> firmware = firmwareStops();
    std::vector<Stop> stops{
        {"wifi-list", {back, opening("option_setWifi")}},
        {"wifi-list-connecting",
         {tappingAt(firstNetwork), seeing("button_enter"), back, chooseNetworkMeanwhile,
          seeing("button_enter")}},
        {"wifi-password", {typing("zell2016")}},
        {"wifi-password-pressed", {[](Walk &walk) { walk.pressKey(QLatin1Char('g')); }}},
        {"wifi-password-upper", {&Walk::release, tapping("button_shiftNormal")}},
        {"wifi-password-symbol", {tapping("button_symbol_2")}},
        {"wifi-result-success", {calling("passwordKeyboard", "jump_wifiConnectResult_page")}},
        {"wifi-result-fail", {showFailure}},
        {"wifi-password-long-name",
         {&Walk::restartAtMenu, findLongName, opening("option_setWifi"), tappingAt(firstNetwork),
          seeing("button_enter")}},
        {"wifi-none", {&Walk::restartAtMenu, loseNetworks, opening("option_setWifi")}},

        {"app-page", {back, opening("option_connectApp")}},
        {"pairing-number", {tapping("button_connectApp")}},
        {"unpair-confirm",
         {back, opening("option_connectApp"), calling("connectApp", "jump_disconnectApp_page")}},
        {"pairing-result-waiting", {tapping("button_confirm")}},
        {"pairing-result", {showPairing}},

        {"location", {&Walk::restartAtMenu, opening("option_setLocation")}},
        {"location-search", {tapping("button_search"), typing("bei")}},
        {"location-result", {tapping("button_enter")}},
        {"location-no-result", {tapping("button_deleteLocation")}},
        {"location-search-again", {back}},
    };
    stops.insert(stops.end(), firmware.begin(), firmware.end());
    return stops;
}
