#pragma once

#include "CertificatesModel.h"
#include "ClipboardProxy.h"
#include "ConnectionTableModel.h"
#include "ConnectionsModel.h"
#include "CryptoUtils.h"
#include "HardwareUtils.h"
#include "KeyboardsLayoutModel.h"
#include "ScreenListModel.h"
#include "SystemInfoModel.h"
#include "UserAvailableWifiModel.h"
#include "WiFiAvailableConnectionsModel.h"
#include "WiFiSavedConnectionsModel.h"

class QQmlContext;

// Registers every backend type with the QML engine, in the order the screens were built against.
void registerQmlTypes();

// The objects the screens reach as context properties. Made by `main`, they live until it returns.
struct ContextObjects {
    ConnectionTableModel connectionTableModel;
    ConnectionsModel connectionsModel;
    SystemInfoModel systemInfoModel{nullptr};
    KeyboardsLayoutModel keyboardLayoutModel;
    WiFiAvailableConnectionsModel wifiAvailableModel;
    WiFiSavedConnectionsModel wifiSavedModel;
    UserAvailableWifiModel wifiUserAvailable;
    ClipboardProxy clipboard;
    HardwareUtils hardwareUtils;
    CryptoUtils cryptoUtils;
    CertificatesModel certModel;
    ScreenListModel screenModel;

    // Publishes them (logging the models' "prepare" lines), then logs "Models ready".
    void publish(QQmlContext* context);
};
