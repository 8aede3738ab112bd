/*
 * Root window of the Norbix shell.
 *
 * openPage(name) jumps straight to a screen; the shell uses it for --page.
 *   main                    home screen
 *   settings                settings, first section that needs no administrator password
 *   lock                    settings with the administrator login open
 *   password                Administrator password page, unlocked
 *   logs                    Logs page, unlocked
 *   connections             Connections settings (table and applications), unlocked
 *   add/rdp, add/citrix, add/vmware, add/browser, add/putty, add/vnc
 *                           the empty add form of that kind over the Connections settings, unlocked
 *   rdp-login               home screen with the RDP sign-in dialog open for the first record, if any
 *   citrix-progress         home screen with the Citrix progress popup open, showing a sample message
 *   remote-request          home screen with a sample remote-assistance request (accepted on timeout)
 *   help-answered           home screen, managed, after the server answered a help request
 *   connection-check        home screen checking the first record's server
 *   vnc-password            home screen with the VNC password prompt open for the first record
 *   settings/<section>      any settings section, unlocked. Sections:
 *                           connections, network-wired, network-wifi, network-8021x, hostname,
 *                           displays, power, datetime, sound, keyboard, mouse, language, wallpaper,
 *                           printers, usb-storage, certificates, password, management, updates,
 *                           export, import, logs, system-info
 *   wizard, wizard/<step>   the first-run wizard, at its first step or at one of: language,
 *                           keyboard, network, time, management
 * Unknown names log a warning and show the home screen.
 */
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import NorbixUi 1.0
import com.APIManager 1.0
import com.AccessibilityBackend 1.0
import com.ConnectionManager 1.0
import com.RDPConnector 1.0
import com.WizardBackend 1.0

T.ApplicationWindow {
    id: window

    property string currentView: "main"
    // The settings area is built the first time it is shown, not at start.
    property bool settingsLoaded: false
    readonly property var settingsView: settingsLoader.item

    onCurrentViewChanged: {
        if (currentView === "settings")
            settingsLoaded = true;
    }

    function showHome() {
        if (settingsView)
            settingsView.lock();
        mainView.helpAvailable = APIManager.isEnabled();
        currentView = "main";
    }

    function showSettings(sectionId) {
        currentView = "settings";
        if (!sectionId || !settingsView.showSection(sectionId))
            settingsView.showFirstSection();
    }

    readonly property var tilesModel: typeof connectionsModel !== "undefined" ? connectionsModel : null
    readonly property var addPages: ({
        "add/rdp": kinds.rdp,
        "add/citrix": kinds.citrix,
        "add/vmware": kinds.vmware,
        "add/browser": kinds.browser,
        "add/putty": kinds.putty,
        "add/vnc": kinds.vnc
    })

    // A tile was clicked: complete records start at once, RDP records without stored
    // credentials ask for them, other incomplete ones open their form.
    function activateConnection(index) {
        if (mainView.networkOffline) {
            showError(qsTr("This terminal has no network connection. Check the network cable or the Wi-Fi, then try again."));
            return;
        }
        if (vncPassword().needsPrompt(index)) {
            vncPassword().openFor(index);
            return;
        }
        if (ConnectionManager.isConnectionFull(index)) {
            if (!ConnectionManager.connectToIndex(index))
                showError(qsTr("Failed to connect"));
            return;
        }
        var type = ConnectionManager.getConnectionType(index);
        if (type === kinds.rdp) {
            rdpLogin().openFor(index);
            return;
        }
        var form = kinds.form(type);
        if (form === "") {
            toast.show(qsTr("This connection is incomplete and can't be started. An administrator can complete it in Settings \u2192 Connections."), "error");
            return;
        }
        formDialog().openForm(form, index);
    }

    function showWizard() {
        wizardBackend.start();
        if (!wizardBackend.done)
            currentView = "wizard";
    }

    function showError(text) {
        errorDialog().message = text;
        if (!errorDialog().opened)
            errorDialog().open();
    }

    function openPage(name) {
        var page = String(name);
        showHome();
        if (page === "main")
            return;
        if (page === "connections") {
            currentView = "settings";
            settingsView.openUnlocked("connections");
            return;
        }
        if (addPages[page] !== undefined) {
            currentView = "settings";
            settingsView.openUnlocked("connections");
            settingsView.currentPage.openForm(addPages[page], -1, true);
            return;
        }
        if (page === "rdp-login") {
            if (ConnectionManager.listConnectionNames().length > 0)
                rdpLogin().openFor(0);
            return;
        }
        if (page === "citrix-progress") {
            citrixProgress.showProgress(qsTr("Connecting to the Citrix store\u2026"));
            return;
        }
        if (page === "remote-request") {
            remotePopup().showPopup(0, 1, qsTr("Support desk"), qsTr("Alex from IT support would like to see your screen to help with your ticket."), 30, "", "");
            return;
        }
        if (page === "connection-check") {
            if (ConnectionManager.listConnectionNames().length > 0)
                connectionCheck().checkIndex(0, ConnectionManager.listConnectionNames()[0]);
            return;
        }
        if (page === "connection-error") {
            showError(RDPConnector.messageForExitCode(147));
            return;
        }
        if (page === "vnc-password") {
            vncPassword().openFor(0);
            return;
        }
        if (page === "help-answered") {
            mainView.helpAvailable = true;
            mainView.helpAnswered = true;
            return;
        }
        if (page === "wizard" || page.indexOf("wizard/") === 0) {
            showWizard();
            if (page !== "wizard" && !wizardBackend.goTo(page.substring("wizard/".length)))
                console.warn("openPage: no wizard step", page);
            return;
        }
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
        if (section !== "") {
            currentView = "settings";
            if (settingsView.hasSection(section)) {
                settingsView.openUnlocked(section);
                return;
            }
            currentView = "main";
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

    // Dialogs are made the first time they are needed, most from their file, so neither their types
    // nor their objects hold up the first frame. `source` is a file name or a Component (whose
    // String() names it uniquely); `init` wires the new dialog's signals.
    property var madeDialogs: ({})
    function made(source, init) {
        var key = String(source);
        if (!madeDialogs[key]) {
            var component = typeof source === "string" ? Qt.createComponent(source) : source;
            var dialog = component.createObject(window);
            if (!dialog) {
                console.warn("Cannot make", key, component.errorString());
                return null;
            }
            if (init)
                init(dialog);
            madeDialogs[key] = dialog;
        }
        return madeDialogs[key];
    }
    function reportsFailure(dialog) {
        dialog.failed.connect(function () { window.showError(qsTr("Failed to connect")); });
    }
    function rdpLogin() { return made("RDPLoginDialog.qml", reportsFailure); }
    function formDialog() {
        return made("ConnectionFormDialog.qml", function (dialog) {
            dialog.saved.connect(function (name, added) {
                toast.show(added ? qsTr("\u201c%1\u201d added.").arg(name) : qsTr("Changes to \u201c%1\u201d saved.").arg(name), "success");
            });
        });
    }
    function errorDialog() { return made(errorDialogComponent); }
    function remotePopup() { return made("AdminConnectionPopup.qml"); }
    function vncPassword() { return made("VNCPasswordDialog.qml", reportsFailure); }
    function connectionCheck() { return made("ConnectionCheckDialog.qml"); }

    ConnectionKinds {
        id: kinds
    }

    Binding {
        target: Theme
        property: "highContrast"
        value: AccessibilityBackend.highContrast
    }

    // The screens end where the on-screen keyboard begins, so it never covers the field in use.
    footer: Item {
        implicitHeight: keyboardLoader.item ? keyboardLoader.item.keyboardHeight : 0
    }

    Loader {
        id: keyboardLoader
        // Above dialogs too: their fields need the keyboard as much as the pages' do.
        parent: T.Overlay.overlay
        z: 10000
        anchors.fill: parent
        active: AccessibilityBackend.onScreenKeyboard && AccessibilityBackend.inputMethodReady
        source: "OnScreenKeyboard.qml"
    }

    // A new terminal starts in the first-run wizard until it is finished.
    Component.onCompleted: {
        if (wizardBackend.isNeeded())
            showWizard();
    }

    WizardBackend {
        id: wizardBackend
    }

    Loader {
        id: wizardLoader
        anchors.fill: parent
        z: 1
        active: window.currentView === "wizard"
        focus: active
        source: "WizardView.qml"
        onLoaded: {
            item.wizard = wizardBackend;
            item.focus = true;
            item.finished.connect(window.showHome);
        }
    }

    MainView {
        id: mainView
        anchors.fill: parent
        visible: window.currentView === "main"
        reservedBottom: assistanceBanner.visible ? assistanceBanner.height + Theme.spacingS : 0
        connectionsModel: window.tilesModel
        connectionTile: Component {
            ConnectionTile {
                // The index turns -1 while the model resets and the tile goes away.
                readonly property var record: index >= 0 ? ConnectionManager.getConnection(index) : null

                width: 272
                height: 188
                name: model.name !== undefined ? model.name : ""
                kind: record ? record.type : -1
                address: record ? record.address : ""
                autoConnect: record ? record.autoConnect : false
                onClicked: window.activateConnection(index)
                onCheckRequested: connectionCheck().checkIndex(index, name)
            }
        }
        onSettingsRequested: window.showSettings("")
        onHelpRequested: {
            APIManager.needHelp();
            toast.show(qsTr("Your request for help has been sent."), "success");
        }
        onConnectionSettingsRequested: window.showSettings("connections")
    }

    Loader {
        id: settingsLoader
        anchors.fill: parent
        active: window.settingsLoaded
        visible: window.currentView === "settings"
        source: "SettingsView.qml"
        onLoaded: item.homeRequested.connect(window.showHome)
    }

    Connections {
        target: ConnectionManager

        function onOpenPasswordPopup(index) {
            if (vncPassword().needsPrompt(index))
                vncPassword().openFor(index);
            else
                rdpLogin().openFor(index);
        }
    }

    Connections {
        target: APIManager

        function onConnectionRequest(messageId, type, title, text, timeout, token, port) {
            remotePopup().showPopup(messageId, type, title, text, timeout, token, port);
        }
        function onHelpNeeded() {
            mainView.helpAnswered = true;
        }
    }

    Connections {
        target: RDPConnector

        function onExitCode(code) {
            var text = RDPConnector.messageForExitCode(code);
            if (text !== "")
                window.showError(text);
        }
    }

    CitrixProgressPopup {
        id: citrixProgress
        mode: "launch"
    }

    // ModalDialog is loaded at start anyway (the Citrix progress above is one).
    Component {
        id: errorDialogComponent
        ModalDialog {
            title: qsTr("Connection error")
            showCancel: false
            okText: qsTr("Close")
        }
    }

    Toast {
        id: toast
        // Above the assistance banner while it shows, never over it.
        bottomOffset: assistanceBanner.visible ? assistanceBanner.height + Theme.spacingS : 0
    }

    TeamsPopup {
        id: teamsPopup
    }

    AssistanceBanner {
        id: assistanceBanner
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 56
        z: 100
    }
}
