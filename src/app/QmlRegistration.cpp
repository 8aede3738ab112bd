#include "QmlRegistration.h"

#include "AccessibilityBackend.h"
#include "APIManager.h"
#include "AssistanceTunnels.h"
#include "BrowserConnectDialogBackend.h"
#include "CertificateExpiry.h"
#include "CertificatesStorage.h"
#include "CitrixConnectDialogBackend.h"
#include "CitrixConnector.h"
#include "ConnectionCheck.h"
#include "ConnectionManager.h"
#include "DisplayRevertGuard.h"
#include "InfoBackend.h"
#include "LanguageBackend.h"
#include "LocalUpdaterBackend.h"
#include "LogManager.h"
#include "MouseSettingsBackend.h"
#include "NetworkManager.h"
#include "NetworkStatus.h"
#include "PasswordManager.h"
#include "PingManager.h"
#include "PowerBackend.h"
#include "PrintersBackend.h"
#include "PuttyConnectDialogBackend.h"
#include "RDPConnectDialogBackend.h"
#include "RDPConnector.h"
#include "RemoteAssistanceBackend.h"
#include "ScreensBackend.h"
#include "SettingsManager.h"
#include "SoundSettingsBackend.h"
#include "TeamsConnector.h"
#include "TimeBackend.h"
#include "Updater.h"
#include "USBManager.h"
#include "VMWareConnectDialogBackend.h"
#include "VNCConnectDialogBackend.h"
#include "VNCConnector.h"
#include "VNCPasswordBackend.h"
#include "WallpapersManager.h"
#include "WizardBackend.h"

#include <QtQml>

void registerQmlTypes()
{
    qRegisterMetaType<Connection>();
    qmlRegisterType<VMWareConnectDialogBackend>("com.vmware.ConnectDialogBackend", 1, 0, "VMWareConnectDialogBackend");
    qmlRegisterType<CitrixConnectDialogBackend>("com.citrix.ConnectDialogBackend", 1, 0, "CitrixConnectDialogBackend");
    qmlRegisterType<BrowserConnectDialogBackend>("com.browser.ConnectDialogBackend", 1, 0, "BrowserConnectDialogBackend");
    qmlRegisterType<PuttyConnectDialogBackend>("com.putty.ConnectDialogBackend", 1, 0, "PuttyConnectDialogBackend");
    qmlRegisterType<MouseSettingsBackend>("com.MouseSettingsBackend", 1, 0, "MouseSettingsBackend");
    qmlRegisterType<LanguageBackend>("com.LanguageBackend", 1, 0, "LanguageBackend");
    qmlRegisterType<VNCConnectDialogBackend>("com.vnc.ConnectDialogBackend", 1, 0, "VNCConnectDialogBackend");
    qmlRegisterType<RDPConnectDialogBackend>("com.rdp.ConnectDialogBackend", 1, 0, "RDPConnectDialogBackend");
    qmlRegisterType<ConnectionTableModel>("com.ConnectionTableModel", 1, 0, "ConnectionTableModel");
    qmlRegisterType<PowerBackend>("com.PowerBackend", 1, 0, "PowerBackend");
    qmlRegisterType<PrintersBackend>("com.PrintersBackend", 1, 0, "PrintersBackend");
    qmlRegisterType<TeamsConnector>("com.TeamsConnector", 1, 0, "TeamsConnector");
    qmlRegisterType<CertificatesStorage>("com.CertificatesStorage", 1, 0, "CertificatesStorage");
    qmlRegisterType<InfoBackend>("com.InfoBackend", 1, 0, "InfoBackend");
    qmlRegisterType<LogManager>("com.LogManager", 1, 0, "LogManager");
    qmlRegisterType<LocalUpdaterBackend>("com.LocalUpdaterBackend", 1, 0, "LocalUpdaterBackend");
    qmlRegisterType<USBManager>("com.USBManager", 1, 0, "USBManager");
    qmlRegisterType<PasswordManager>("com.PasswordManager", 1, 0, "PasswordManager");
    qmlRegisterType<WallpapersManager>("com.WallpapersManager", 1, 0, "WallpapersManager");
    qmlRegisterType<SettingsManager>("com.SettingsManager", 1, 0, "SettingsManager");
    qmlRegisterSingletonType<VNCConnector>("com.VNCConnector", 1, 0, "VNCConnector", &VNCConnector::qmlInstance);
    qmlRegisterSingletonType<ConnectionManager>("com.ConnectionManager", 1, 0, "ConnectionManager", &ConnectionManager::qmlInstance);
    qmlRegisterSingletonType<SoundSettingsBackend>("com.SoundSettingsBackend", 1, 0, "SoundSettingsBackend", &SoundSettingsBackend::qmlInstance);
    qmlRegisterSingletonType<ScreensBackend>("com.ScreensBackend", 1, 0, "ScreensBackend", &ScreensBackend::qmlInstance);
    qmlRegisterSingletonType<TimeBackend>("com.TimeBackend", 1, 0, "TimeBackend", &TimeBackend::qmlInstance);
    qmlRegisterType<DisplayRevertGuard>("com.DisplayRevertGuard", 1, 0, "DisplayRevertGuard");
    qmlRegisterSingletonType<RDPConnector>("com.RDPConnector", 1, 0, "RDPConnector", &RDPConnector::qmlInstance);
    qmlRegisterSingletonType<Updater>("com.Updater", 1, 0, "Updater", &Updater::qmlInstance);
    qmlRegisterSingletonType<APIManager>("com.APIManager", 1, 0, "APIManager", &APIManager::qmlInstance);
    qmlRegisterSingletonType<CitrixConnector>("com.CitrixConnector", 1, 0, "CitrixConnector", &CitrixConnector::qmlInstance);
    qmlRegisterType<NetworkManager>("com.NetworkManager", 1, 0, "NetworkManager");
    qmlRegisterType<PingManager>("com.PingManager", 1, 0, "PingManager");
    qmlRegisterType<RemoteAssistanceBackend>("com.RemoteAssistanceBackend", 1, 0, "RemoteAssistanceBackend");
    qmlRegisterType<ConnectionCheck>("com.ConnectionCheck", 1, 0, "ConnectionCheck");
    qmlRegisterType<NetworkStatus>("com.NetworkStatus", 1, 0, "NetworkStatus");
    qmlRegisterType<CertificateExpiry>("com.CertificateExpiry", 1, 0, "CertificateExpiry");
    qmlRegisterType<VNCPasswordBackend>("com.VNCPasswordBackend", 1, 0, "VNCPasswordBackend");
    qmlRegisterSingletonType<AssistanceTunnels>("com.AssistanceTunnels", 1, 0, "AssistanceTunnels", &AssistanceTunnels::qmlInstance);

    qmlRegisterType<WizardBackend>("com.WizardBackend", 1, 0, "WizardBackend");
    qmlRegisterSingletonType<AccessibilityBackend>("com.AccessibilityBackend", 1, 0, "AccessibilityBackend", &AccessibilityBackend::qmlInstance);
}

void ContextObjects::publish(QQmlContext* context)
{
    qDebug() << "prepare connectionTableModel";
    context->setContextProperty(QStringLiteral("connectionTableModel"), &connectionTableModel);
    qDebug() << "prepare connectionsModel";
    context->setContextProperty(QStringLiteral("connectionsModel"), &connectionsModel);
    qDebug() << "prepare systemInfoModel";
    systemInfoModel.asyncRead();
    context->setContextProperty(QStringLiteral("systemInfoModel"), &systemInfoModel);
    qDebug() << "prepare keyboardLayoutModel";
    context->setContextProperty(QStringLiteral("keyboadLayoutModel"), &keyboardLayoutModel);
    qDebug() << "prepare wifiAvailableModel";
    context->setContextProperty(QStringLiteral("wifiAvailableModel"), &wifiAvailableModel);
    qDebug() << "prepare wifiSavedModel";
    context->setContextProperty(QStringLiteral("wifiSavedModel"), &wifiSavedModel);
    qDebug() << "prepare wifiUserAvailable";
    context->setContextProperty(QStringLiteral("wifiUserAvailable"), &wifiUserAvailable);
    context->setContextProperty(QStringLiteral("clipboard"), &clipboard);
    context->setContextProperty(QStringLiteral("hardwareUtils"), &hardwareUtils);
    context->setContextProperty(QStringLiteral("cryptoUtils"), &cryptoUtils);
    context->setContextProperty(QStringLiteral("certModel"), &certModel);
    context->setContextProperty(QStringLiteral("screenModel"), &screenModel);
    qInfo() << "Models ready";
}
