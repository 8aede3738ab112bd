import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.SettingsManager 1.0

PageScaffold {
    id: page

    property var folders: []
    property string resultText: ""
    property string resultKind: "info"

    function refreshFolders() {
        var previous = folderBox.currentIndex >= 0 ? folders[folderBox.currentIndex].path : "";
        folders = manager.listFoldersToImport().map(function (path) { return { path: path, label: manager.folderLabel(path) }; });
        var index = folders.findIndex(function (folder) { return folder.path === previous; });
        folderBox.currentIndex = index >= 0 ? index : (folders.length > 0 ? 0 : -1);
    }

    function importSelected() {
        resultText = "";
        groupsCard.applyTo(manager);
        manager.importConfig(folders[folderBox.currentIndex].path);
    }

    Component.onCompleted: refreshFolders()

    SettingsManager {
        id: manager
        onImportFinished: {
            if (missing.length === 0) {
                page.resultKind = "success";
                page.resultText = qsTr("%n group(s) of settings loaded.", "", copied);
            } else {
                page.resultKind = "warning";
                page.resultText = qsTr("%n group(s) of settings loaded. Not in the saved set, so reset to their defaults: %1.", "", copied)
                                      .arg(missing.join(", "));
            }
        }
    }

    SettingsGroupsCard {
        id: groupsCard
        Layout.fillWidth: true
        subtitle: qsTr("Choose what to load. A chosen group that the saved set lacks is reset to its defaults.")
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Source")
        subtitle: qsTr("Saved settings are folders named after the terminal they came from and the time they were saved.")

        FormComboBox {
            id: folderBox
            Layout.fillWidth: true
            label: qsTr("Choose folder to import settings")
            model: page.folders
            textRole: "label"
            enabled: page.folders.length > 0
            placeholderText: qsTr("No saved settings found")
            hintText: page.folders.length === 0 ? qsTr("Insert a USB drive with exported settings, then refresh the list.") : ""

            IconButton {
                iconName: "refresh"
                text: qsTr("Refresh folder list")
                onClicked: page.refreshFolders()
            }
        }

        PrimaryButton {
            iconName: "download"
            text: qsTr("Import")
            enabled: folderBox.currentIndex >= 0 && groupsCard.checkedCount > 0
            onClicked: confirmDialog.open()
        }

        ResultBanner {
            Layout.fillWidth: true
            text: page.resultText
            kind: page.resultKind
        }
    }

    ModalDialog {
        id: confirmDialog
        title: qsTr("Import settings")
        message: qsTr("The chosen settings of this terminal are replaced by the saved ones.")
        okText: qsTr("Import")
        onOkClicked: page.importSelected()
    }
}
