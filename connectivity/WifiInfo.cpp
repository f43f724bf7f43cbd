#include "connectivity/WifiInfo.h"

WifiInfo::WifiInfo(const QString &name, const QString &address, int level, EncryptType type)
    : ssid(name)
    , mac(address)
    , signalLevel(level)
    , encryptType(type)
{
}

bool WifiInfo::isConnected() const
{
    return connectState == StateConnected || connectState == StateConnectedNoNetwork;
}

bool WifiInfo::hasNetwork() const
{
    return connectState == StateConnected;
}

bool WifiInfo::isConnecting() const
{
    return connectState == StateConnecting;
}

ConnectState WifiInfo::getConnectState() const
{
    return connectState;
}

void WifiInfo::setConnectState(ConnectState state)
{
    connectState = state;
}
