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
        folders = manager.listFolders().map(function (path) { return { path: path, label: manager.folderLabel(path) }; });
        var index = folders.findIndex(function (folder) { return folder.path === previous; });
        folderBox.currentIndex = index >= 0 ? index : (folders.length > 0 ? 0 : -1);
    }

    function exportSelected() {
        resultText = "";
        groupsCard.applyTo(manager);
        manager.exportConfig(folders[folderBox.currentIndex].path);
    }

    Component.onCompleted: refreshFolders()

    SettingsManager {
        id: manager
        onExportFinished: {
            if (!ok) {
                page.resultKind = "error";
                page.resultText = qsTr("The settings could not be saved: the drive cannot be written to.");
            } else if (copied === 0) {
                page.resultKind = "warning";
                page.resultText = qsTr("Nothing was copied: the chosen settings do not exist on this terminal yet.");
            } else {
                page.resultKind = "success";
                page.resultText = qsTr("%n group(s) of settings saved to %1.", "", copied).arg(folder);
            }
        }
    }

    SettingsGroupsCard {
        id: groupsCard
        Layout.fillWidth: true
        subtitle: qsTr("Choose what to copy to the USB drive.")
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Destination")
        subtitle: qsTr("A new folder named after this terminal and the current time is created on the drive.")

        FormComboBox {
            id: folderBox
            Layout.fillWidth: true
            label: qsTr("Choose folder to export settings")
            model: page.folders
            textRole: "label"
            enabled: page.folders.length > 0
            placeholderText: qsTr("No removable drive found")
            hintText: page.folders.length === 0 ? qsTr("Insert a USB drive, then refresh the list.") : ""

            IconButton {
                iconName: "refresh"
                text: qsTr("Refresh drive list")
                onClicked: page.refreshFolders()
            }
        }

        PrimaryButton {
            iconName: "upload"
            text: qsTr("Export")
            enabled: folderBox.currentIndex >= 0 && groupsCard.checkedCount > 0
            onClicked: page.exportSelected()
        }

        ResultBanner {
            Layout.fillWidth: true
            text: page.resultText
            kind: page.resultKind
        }
    }
}
