import QtQuick 2.15

// Settings sections in navigation order. Sections marked admin need the administrator password.
QtObject {
    id: catalog

    readonly property var groups: [
        {
            title: qsTr("Connectivity"),
            sections: [
                { id: "connections", title: qsTr("Connections"), icon: "plug", admin: true, page: "ConnectionsPage.qml",
                  description: qsTr("Remote sessions that appear as tiles on the home screen.") },
                { id: "network-wired", title: qsTr("Wired network"), icon: "network", admin: true, page: "WiredNetworkPage.qml",
                  description: qsTr("Ethernet addressing and DNS servers.") },
                { id: "network-wifi", title: qsTr("Wi-Fi"), icon: "wifi", admin: true, page: "WifiPage.qml",
                  description: qsTr("Wireless networks and saved credentials.") },
                { id: "network-8021x", title: qsTr("802.1X authentication"), icon: "shield", admin: true, page: "Dot1xPage.qml",
                  description: qsTr("Port-based network access control for wired and wireless networks.") },
                { id: "hostname", title: qsTr("Host name"), icon: "badge", admin: true, page: "HostnamePage.qml",
                  description: qsTr("The name this terminal uses on the network.") },
                { id: "network-diagnosis", title: qsTr("Network diagnosis"), icon: "terminal", admin: true, page: "DiagnosisPage.qml",
                  description: qsTr("Check that a host answers over the network.") },
                { id: "wifi-networks", title: qsTr("Wi-Fi networks"), icon: "wifi", admin: false, page: "WifiUserPage.qml",
                  description: qsTr("Join a wireless network approved by your administrator.") }
            ]
        },
        {
            title: qsTr("Preferences"),
            sections: [
                { id: "displays", title: qsTr("Displays"), icon: "monitor", admin: false, page: "DisplaysPage.qml",
                  description: qsTr("Resolution, arrangement and orientation of connected monitors.") },
                { id: "power", title: qsTr("Power saving"), icon: "power", admin: false, page: "PowerPage.qml",
                  description: qsTr("Screen blanking and standby timing.") },
                { id: "datetime", title: qsTr("Date & time"), icon: "clock", admin: false, page: "DateTimePage.qml",
                  description: qsTr("Time zone, clock format and time servers.") },
                { id: "sound", title: qsTr("Sound"), icon: "sound", admin: false, page: "SoundPage.qml",
                  description: qsTr("Output and input devices and volume.") },
                { id: "keyboard", title: qsTr("Keyboard"), icon: "keyboard", admin: false, page: "KeyboardPage.qml",
                  description: qsTr("Keyboard layout and key repeat.") },
                { id: "mouse", title: qsTr("Mouse"), icon: "mouse", admin: false, page: "MousePage.qml",
                  description: qsTr("Pointer speed, button order and double-click timing.") },
                { id: "language", title: qsTr("Language"), icon: "globe", admin: false, page: "LanguagePage.qml",
                  description: qsTr("Display language and regional formats.") },
                { id: "wallpaper", title: qsTr("Wallpaper"), icon: "image", admin: false, page: "WallpaperPage.qml",
                  description: qsTr("Background image of the home screen.") },
                { id: "accessibility", title: qsTr("Accessibility"), icon: "eye", admin: false, page: "AccessibilityPage.qml",
                  description: qsTr("On-screen keyboard and high contrast.") }
            ]
        },
        {
            title: qsTr("Devices"),
            sections: [
                { id: "printers", title: qsTr("Printers"), icon: "printer", admin: true, page: "PrintersPage.qml",
                  description: qsTr("Local and network printers available to sessions.") },
                { id: "usb-storage", title: qsTr("USB storage"), icon: "usb", admin: true, page: "UsbStoragePage.qml",
                  description: qsTr("Access to USB drives on this terminal and in sessions.") },
                { id: "power-actions", title: qsTr("Shut down & restart"), icon: "power", admin: false, page: "PowerActionsPage.qml",
                  description: qsTr("Switch the terminal off or start it again.") }
            ]
        },
        {
            title: qsTr("Security"),
            sections: [
                { id: "certificates", title: qsTr("Certificates"), icon: "award", admin: true, page: "CertificatesPage.qml",
                  description: qsTr("Trusted certificate authorities and client certificates.") },
                { id: "password", title: qsTr("Administrator password"), icon: "key", admin: true,
                  page: "AdminPasswordPage.qml",
                  description: qsTr("The password that protects the advanced settings.") }
            ]
        },
        {
            title: qsTr("Management"),
            sections: [
                { id: "management", title: qsTr("Management server"), icon: "server", admin: true, page: "ManagementPage.qml",
                  description: qsTr("Central management of this terminal.") },
                { id: "updates", title: qsTr("Updates"), icon: "update", admin: true, page: "UpdatesPage.qml",
                  description: qsTr("Software updates for this terminal.") },
                { id: "export", title: qsTr("Export settings"), icon: "upload", admin: true, page: "ExportSettingsPage.qml",
                  description: qsTr("Save this terminal's configuration to a USB drive.") },
                { id: "import", title: qsTr("Import settings"), icon: "download", admin: true, page: "ImportSettingsPage.qml",
                  description: qsTr("Load a configuration from a USB drive.") }
            ]
        },
        {
            title: qsTr("Support"),
            sections: [
                { id: "logs", title: qsTr("Logs"), icon: "document", admin: true, page: "LogsPage.qml",
                  description: qsTr("Diagnostic messages of this session and export for support.") },
                { id: "system-info", title: qsTr("System information"), icon: "info", admin: false, page: "SystemInfoPage.qml",
                  description: qsTr("Hardware, software version and network details.") }
            ]
        }
    ]

    function find(id) {
        for (var g = 0; g < groups.length; ++g) {
            var sections = groups[g].sections;
            for (var s = 0; s < sections.length; ++s) {
                if (sections[s].id === id)
                    return sections[s];
            }
        }
        return null;
    }

    function firstOpen(adminUnlocked) {
        for (var g = 0; g < groups.length; ++g) {
            var sections = groups[g].sections;
            for (var s = 0; s < sections.length; ++s) {
                if (adminUnlocked || !sections[s].admin)
                    return sections[s].id;
            }
        }
        return "";
    }
}
