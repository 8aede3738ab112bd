import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.browser.ConnectDialogBackend 1.0

// Adds a web site that opens in the browser, or edits the one at connectionIndex.
FormPage {
    id: form

    property int connectionIndex: -1
    readonly property bool editing: connectionIndex >= 0
    property string loadedName

    signal saved(string name)

    function load() {
        backend.loadConnection(connectionIndex);
        loadedName = backend.getConnectionName();
        nameField.text = loadedName;
        siteField.text = backend.getAddress();
        kioskRow.checked = backend.getFlag("kiosk");
        privateRow.checked = backend.getFlag("clearCache");
    }

    function validate() {
        nameField.errorText = nameField.text.trim() === "" ? qsTr("Connection name can't be empty") : "";
        siteField.errorText = siteField.text.trim() === "" ? qsTr("Server address can't be empty") : "";
        var invalid = nameField.errorText !== "" ? nameField : siteField.errorText !== "" ? siteField : null;
        if (invalid) {
            form.reveal(invalid);
            invalid.focusInput();
            return false;
        }
        return true;
    }

    title: editing ? qsTr("Edit Browser Connection") : qsTr("Add Browser Connection")
    subtitle: editing ? loadedName : qsTr("A web site or web application in the browser.")
    iconName: "globe"
    submitText: editing ? qsTr("Save") : qsTr("Add connection")

    Component.onCompleted: {
        if (editing)
            load();
        else
            nameField.focusInput();
    }

    onSubmitted: {
        if (!validate())
            return;
        var name = nameField.text.trim();
        backend.setFlag("kiosk", kioskRow.checked);
        backend.setFlag("clearCache", privateRow.checked);
        if (editing)
            backend.replaceConnection(connectionIndex, name, siteField.text.trim());
        else
            backend.addConnection(name, siteField.text.trim());
        form.saved(name);
    }

    BrowserConnectDialogBackend {
        id: backend
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Connection")

        GridLayout {
            Layout.fillWidth: true
            columns: width >= 520 ? 2 : 1
            columnSpacing: Theme.spacingL
            rowSpacing: Theme.spacingS

            FormField {
                id: nameField
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                label: qsTr("Connection name")
                placeholderText: qsTr("Shown on the home screen")
                maximumLength: 80
                onEdited: errorText = ""
                onAccepted: form.submitted()
            }

            FormField {
                id: siteField
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                label: qsTr("Site")
                placeholderText: qsTr("e.g. https://intranet.example.com")
                input.inputMethodHints: Qt.ImhUrlCharactersOnly | Qt.ImhNoAutoUppercase
                onEdited: errorText = ""
                onAccepted: form.submitted()
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Browser")
        spacing: 0

        SwitchRow {
            id: kioskRow
            Layout.fillWidth: true
            Layout.leftMargin: -Theme.spacingL
            Layout.rightMargin: -Theme.spacingL
            title: qsTr("Kiosk mode")
            description: qsTr("Full screen, without address bar, tabs or menus.")
        }

        SwitchRow {
            id: privateRow
            Layout.fillWidth: true
            Layout.leftMargin: -Theme.spacingL
            Layout.rightMargin: -Theme.spacingL
            title: qsTr("Private window")
            description: qsTr("Nothing from earlier visits is kept: no history, cookies or cache.")
        }
    }
}
