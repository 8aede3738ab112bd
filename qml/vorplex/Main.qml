/*
 * Root window of the Norbix shell.
 *
 * openPage(name) jumps straight to a screen; the shell uses it for --page.
 *   main                    home screen
 *   settings                settings, first section that needs no administrator password
 *   lock                    settings with the administrator login open
 *   password                Administrator password page, unlocked
 *   logs                    Logs page, unlocked
 *   settings/<section>      any settings section, unlocked. Sections:
 *                           connections, network-wired, network-wifi, network-8021x, hostname,
 *                           displays, power, datetime, sound, keyboard, mouse, language, wallpaper,
 *                           printers, usb-storage, certificates, password, management, updates,
 *                           export, import, logs, system-info
 * Unknown names log a warning and show the home screen.
 */
import QtQuick 2.15
import QtQuick.Controls 2.15
import NorbixUi 1.0

ApplicationWindow {
    id: window

    property string currentView: "main"

    function showHome() {
        settingsView.lock();
        currentView = "main";
    }

    function showSettings(sectionId) {
        currentView = "settings";
        if (!sectionId || !settingsView.showSection(sectionId))
            settingsView.showFirstSection();
    }

    function openPage(name) {
        var page = String(name);
        showHome();
        if (page === "main")
            return;
        if (page === "settings") {
            showSettings("");
            return;
        }
        if (page === "lock") {
            showSettings("");
            settingsView.requestUnlock();
            return;
        }
        var section = "";
        if (page === "password" || page === "logs")
            section = page;
        else if (page.indexOf("settings/") === 0)
            section = page.substring("settings/".length);
        if (section !== "" && settingsView.hasSection(section)) {
            currentView = "settings";
            settingsView.openUnlocked(section);
            return;
        }
        console.warn("openPage: unknown page", page);
    }

    title: "Norbix"
    width: 1280
    height: 720
    minimumWidth: 1024
    minimumHeight: 600
    color: Theme.background
    font.family: Theme.fontFamily
    font.pixelSize: Theme.fontBody

    MainView {
        id: mainView
        anchors.fill: parent
        visible: window.currentView === "main"
        onSettingsRequested: window.showSettings("")
        onConnectionSettingsRequested: window.showSettings("connections")
    }

    SettingsView {
        id: settingsView
        anchors.fill: parent
        visible: window.currentView === "settings"
        onHomeRequested: window.showHome()
    }
}
