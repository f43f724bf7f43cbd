#pragma once

#include <QString>

/// How a network is encrypted. Nothing tells the kinds apart yet.
enum class EncryptType { None = 0 };
using enum EncryptType;

/// How far the connection to a network has come.
enum class ConnectState {
    StateDisconnected = 0,
    StateConnected = 1,
    /// Associated, but no use: nothing lies behind the network.
    StateConnectedNoNetwork = 2,
    StateConnecting = 3,
};
using enum ConnectState;

/// One network of a scan.
class WifiInfo
{
public:
    /// @p level is the signal strength in bars, as scanned: 1 ... 4 are meant.
    WifiInfo(const QString &name, const QString &address, int level, EncryptType type);

    /// Tells so with or without a usable network behind.
    bool isConnected() const;
    bool hasNetwork() const;
    bool isConnecting() const;

    ConnectState getConnectState() const;
    void setConnectState(ConnectState state);

    QString ssid;
    QString mac;
    int signalLevel;
    /// Free for notes; nothing sets it.
    QString extra;
    EncryptType encryptType;

private:
    ConnectState connectState = StateDisconnected;
};
